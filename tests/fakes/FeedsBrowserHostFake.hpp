#pragma once

#include "Brindle/browser/FeedsBrowserHost.hpp"
#include "tests/fakes/CallLog.hpp"

namespace brindle {

/// Logs what the browser asks for.
class FeedsBrowserHostFake : public FeedsBrowserHost {
public:
    explicit FeedsBrowserHostFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void refreshInterface() override { log->emplace_back("refreshInterface"); }
    void updateMenu() override { log->emplace_back("updateMenu"); }
    void editFeedItem(const std::shared_ptr<FeedItem>& feedItem) override { log->push_back("editFeedItem " + feedItem->name()); }
    void editFeedGroup(const std::shared_ptr<FeedGroup>& feedGroup) override { log->push_back("editFeedGroup " + feedGroup->name()); }

    CallLog log;
};

} // namespace brindle
