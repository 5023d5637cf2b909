#pragma once

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/menu/MenuActions.hpp"
#include "Brindle/shell/AppDelegate.hpp"
#include "foundation/NotificationCenter.hpp"
#include "tests/fakes/AlertPresenterFake.hpp"
#include "tests/fakes/CallLog.hpp"
#include "tests/fakes/ClockFake.hpp"
#include "tests/fakes/DistributedNotificationCenterFake.hpp"
#include "tests/fakes/FilePanelsFake.hpp"
#include "tests/fakes/LaunchServicesFake.hpp"
#include "tests/fakes/LoginItemFake.hpp"
#include "tests/fakes/RunningApplicationsFake.hpp"
#include "tests/fakes/SystemEventsFake.hpp"
#include "tests/fakes/TimeSourceFake.hpp"
#include "tests/fakes/WindowFactoryFake.hpp"
#include "tests/fakes/WorkspaceFake.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// An application on a desktop of fakes, which write to one log with the console's lines (up to ", error: ", without those of ended
/// articles) and the notices of changes between. Nothing is launched yet, and the network is away.
class AppDelegateTest : public ::testing::Test {
protected:
    static constexpr const char* bundleIdentifier = "test.brindle";
    static constexpr const char* launcher = "test.brindle.launcher";

    AppDelegateTest();
    ~AppDelegateTest() override;

    /// A feed with an article for each title, all unread, linked to "http://a.test/" and the title; without a link for a title that begins
    /// with "-".
    std::shared_ptr<FeedItem> makeItem(const std::string& name, const std::vector<std::string>& titles = {});
    /// Appends an entry at the top level.
    template <typename Entry>
    std::shared_ptr<Entry> add(std::shared_ptr<Entry> feed) {
        feedsManager().addFeed(feed, std::ssize(feedsManager().feeds));
        return feed;
    }
    FeedsManager& feedsManager() { return *delegate->feedsManager(); }
    /// Names of the top level; "-" for a separator.
    std::vector<std::string> names();
    void set(std::string_view key, UserDefaults::Value value) { environment.defaults->set(key, std::move(value)); }
    bool isOn(std::string_view key) const { return environment.defaults->boolForKey(key); }
    void perform(std::string_view action, const std::shared_ptr<Object>& object = nullptr);
    std::vector<std::string> takeCalls() { return brindle::takeCalls(log); }
    /// Stores a library of one feed.
    void storeLibrary(const std::string& name);
    /// Makes the delegate again, after a change of the environment.
    void remake();

    TemporaryFolder folder;
    CallLog log = makeCallLog();
    std::shared_ptr<TimeSourceFake> time = std::make_shared<TimeSourceFake>();
    std::shared_ptr<AlertPresenterFake> alerts = std::make_shared<AlertPresenterFake>(log);
    std::shared_ptr<FilePanelsFake> panels = std::make_shared<FilePanelsFake>(log);
    std::shared_ptr<WindowFactoryFake> windows = std::make_shared<WindowFactoryFake>(log);
    std::shared_ptr<WorkspaceFake> workspace = std::make_shared<WorkspaceFake>(log);
    std::shared_ptr<SystemEventsFake> systemEvents = std::make_shared<SystemEventsFake>(log);
    std::shared_ptr<LaunchServicesFake> launchServices = std::make_shared<LaunchServicesFake>(log);
    std::shared_ptr<LoginItemFake> loginItem = std::make_shared<LoginItemFake>(log);
    std::shared_ptr<RunningApplicationsFake> running = std::make_shared<RunningApplicationsFake>();
    bool shiftKeyIsDown = false;
    AppDelegateEnvironment environment;
    std::shared_ptr<AppDelegate> delegate;

private:
    std::vector<NotificationCenter::Token> _observers;
};

} // namespace brindle
