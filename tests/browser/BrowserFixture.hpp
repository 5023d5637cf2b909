#pragma once

#include "Brindle/browser/FeedsBrowserEnvironment.hpp"
#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"
#include "tests/fakes/AlertPresenterFake.hpp"
#include "tests/fakes/CallLog.hpp"
#include "tests/fakes/ClockFake.hpp"
#include "tests/fakes/FeedsBrowserHostFake.hpp"
#include "tests/fakes/WorkspaceFake.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace brindle {

/// A library in memory, preferences with their defaults, fakes for all around the browser, which write to one log, and the console held
/// still.
class BrowserTest : public ::testing::Test {
protected:
    using Articles = std::vector<std::shared_ptr<FeedItemArticle>>;

    BrowserTest();
    ~BrowserTest() override;

    /// A feed with an article for each title, all of them unread, linked to "http://a.test/" and the title, with the title and "!" as
    /// content.
    std::shared_ptr<FeedItem> makeItem(const std::string& name, const std::vector<std::string>& titles = {});
    /// Replaces the feed's articles, as a parse does.
    void parse(FeedItem& item, const std::vector<std::string>& titles) const;
    /// Appends an entry to a group, or at the top level.
    template <typename Entry>
    std::shared_ptr<Entry> add(std::shared_ptr<Entry> feed, const std::shared_ptr<FeedGroup>& group = nullptr) {
        manager->addFeed(feed, std::ssize(group ? group->feeds() : manager->feeds), group);
        return feed;
    }
    void set(std::string_view key, UserDefaults::Value value) { defaults->set(key, std::move(value)); }
    /// The names of entries, in order; "-" for a separator.
    static std::vector<std::string> names(const FeedsManager::Feeds& feeds);
    static std::vector<std::string> titles(const Articles& articles);
    std::vector<std::string> takeCalls() { return brindle::takeCalls(log); }

    TemporaryFolder folder;
    std::shared_ptr<ClockFake> clock = std::make_shared<ClockFake>(Date(std::chrono::hours(500'000)));
    CallLog log = makeCallLog();
    std::shared_ptr<UserDefaults> defaults;
    std::shared_ptr<FeedsManager> manager;
    std::shared_ptr<SavedArticlesManager> saved;
    std::shared_ptr<CollectionEntityManager> collections;
    std::shared_ptr<FeedsBrowserHostFake> host = std::make_shared<FeedsBrowserHostFake>(log);
    std::shared_ptr<AlertPresenterFake> alerts = std::make_shared<AlertPresenterFake>(log);
    std::shared_ptr<WorkspaceFake> workspace = std::make_shared<WorkspaceFake>(log);
    std::shared_ptr<ActionHandlerFake> application = std::make_shared<ActionHandlerFake>(); ///< end of the chain
    FeedsBrowserEnvironment environment;
};

} // namespace brindle
