#pragma once

#include "platform/Workspace.hpp"
#include "tests/fakes/CallLog.hpp"

namespace brindle {

/// Logs the addresses that it is to open.
class WorkspaceFake : public Workspace {
public:
    explicit WorkspaceFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void openURL(const URL& url) override { log->push_back("openURL " + url.absoluteString()); }

    CallLog log;
};

} // namespace brindle
