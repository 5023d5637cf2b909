#pragma once

#include "Brindle/shell/WindowFactory.hpp"
#include "tests/fakes/OutlineViewFake.hpp"
#include "tests/fakes/PlayerFake.hpp"
#include "tests/fakes/TabViewFake.hpp"
#include "tests/fakes/TableViewFake.hpp"
#include "tests/fakes/WebViewFake.hpp"
#include "tests/fakes/WindowFake.hpp"

#include <memory>
#include <string>
#include <utility>

namespace brindle {

class SplashWindowFake : public SplashWindow {
public:
    explicit SplashWindowFake(CallLog callLog) : log(std::move(callLog)) {}
    void show() override { log->emplace_back("showSplash"); }
    void close() override { log->emplace_back("closeSplash"); }

    CallLog log;
};

/// Logs what its windows do, the making of each once, and makes none where a test wants that.
class WindowFactoryFake : public WindowFactory {
public:
    explicit WindowFactoryFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    std::shared_ptr<SplashWindow> makeSplashWindow() override {
        splash = makes ? std::make_shared<SplashWindowFake>(log) : nullptr;
        return splash;
    }
    std::shared_ptr<FeedsBrowserWindowController> makeFeedsBrowser(const FeedsBrowserEnvironment& environment) override {
        if (!makes)
            return nullptr;
        const auto toolbarItem = std::make_shared<RemoveFeedToolbarItem>();
        const auto split = FeedsBrowserSplitViewController::make(environment, toolbarItem, webContainer);
        split->feedsViewController().feedsOutlineView = outline;
        split->feedsViewController().viewDidLoad();
        split->articlesViewController().articlesTableView = table;
        split->articlesViewController().viewDidLoad();
        split->articleViewController().viewDidLoad();
        browserWindow = std::make_shared<WindowFake>(log);
        browser = std::make_shared<FeedsBrowserWindowController>(environment, browserWindow, split, toolbarItem);
        ++browsersMade;
        return browser;
    }
    std::shared_ptr<MediaPlayerWindowController> makeMediaPlayer() override {
        const auto view = MediaPlayerViewController::make(nullptr);
        player = makes ? MediaPlayerWindowController::make(std::make_shared<WindowFake>(log), view) : nullptr;
        return player;
    }
    std::shared_ptr<PreferencesWindowController> makePreferencesWindow(const PreferencesEnvironment& environment) override {
        if (!makes)
            return nullptr;
        preferencesWindow = std::make_shared<WindowFake>(log);
        preferences = PreferencesWindowController::make(environment, preferencesWindow);
        preferences->contentViewController().tabView = tabs;
        preferences->windowDidLoad();
        return preferences;
    }
    std::shared_ptr<NewFeedWindowController> makeNewFeedWindow(const NewFeedEnvironment& environment) override {
        if (!makes)
            return nullptr;
        newFeedWindow = std::make_shared<WindowFake>(log);
        newFeed = NewFeedWindowController::make(environment, newFeedWindow);
        newFeed->windowDidLoad();
        return newFeed;
    }
    void showArticleWindow(const FeedsBrowserEnvironment&, const std::shared_ptr<FeedItemArticle>& article) override {
        log->push_back("showArticleWindow " + article->entry->title);
    }

    CallLog log;
    bool makes = true;
    int browsersMade = 0;
    std::shared_ptr<SplashWindowFake> splash;
    std::shared_ptr<FeedsBrowserWindowController> browser;
    std::shared_ptr<WindowFake> browserWindow;
    std::shared_ptr<MediaPlayerWindowController> player;
    std::shared_ptr<PreferencesWindowController> preferences;
    std::shared_ptr<WindowFake> preferencesWindow;
    std::shared_ptr<NewFeedWindowController> newFeed;
    std::shared_ptr<WindowFake> newFeedWindow;
    std::shared_ptr<TabViewFake> tabs = std::make_shared<TabViewFake>(log);
    std::shared_ptr<OutlineViewFake> outline = std::make_shared<OutlineViewFake>();
    std::shared_ptr<TableViewFake> table = std::make_shared<TableViewFake>();
    std::shared_ptr<WebContainerViewFake> webContainer = std::make_shared<WebContainerViewFake>();
};

} // namespace brindle
