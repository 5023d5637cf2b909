#pragma once

#include "Brindle/shell/WindowFactory.hpp"
#include "tests/fakes/OutlineViewFake.hpp"
#include "tests/fakes/PlayerFake.hpp"
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

class PreferencesWindowFake : public PreferencesWindow {
public:
    explicit PreferencesWindowFake(CallLog callLog) : log(std::move(callLog)) {}
    void clearSelectedTabKind() override { log->emplace_back("clearSelectedTabKind"); }
    void show() override { log->emplace_back("showPreferences"); }

    CallLog log;
};

class NewFeedWindowFake : public NewFeedWindow {
public:
    explicit NewFeedWindowFake(CallLog callLog) : log(std::move(callLog)) {}
    void showForFeedItem(const std::shared_ptr<FeedItem>& item) override {
        log->push_back("showForFeedItem " + (item ? item->name() : "new"));
    }
    void showForFeedGroup(const std::shared_ptr<FeedGroup>& group) override {
        log->push_back("showForFeedGroup " + (group ? group->name() : "new"));
    }

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
        const auto feeds = FeedsBrowserFeedsViewController::make(environment, toolbarItem);
        feeds->feedsOutlineView = outline;
        feeds->viewDidLoad();
        const auto articles = FeedsBrowserFeedArticlesViewController::make(environment);
        articles->articlesTableView = table;
        articles->viewDidLoad();
        const auto article = FeedsBrowserArticleViewController::make(environment, webContainer, false);
        article->viewDidLoad();
        browserWindow = std::make_shared<WindowFake>(log);
        browser = std::make_shared<FeedsBrowserWindowController>(
            environment, browserWindow, std::make_shared<FeedsBrowserSplitViewController>(feeds, articles, article), toolbarItem);
        ++browsersMade;
        return browser;
    }
    std::shared_ptr<MediaPlayerWindowController> makeMediaPlayer() override {
        const auto view = MediaPlayerViewController::make(nullptr);
        player = makes ? MediaPlayerWindowController::make(std::make_shared<WindowFake>(log), view) : nullptr;
        return player;
    }
    std::shared_ptr<PreferencesWindow> makePreferencesWindow() override {
        return makes ? std::make_shared<PreferencesWindowFake>(log) : nullptr;
    }
    std::shared_ptr<NewFeedWindow> makeNewFeedWindow() override { return makes ? std::make_shared<NewFeedWindowFake>(log) : nullptr; }
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
    std::shared_ptr<OutlineViewFake> outline = std::make_shared<OutlineViewFake>();
    std::shared_ptr<TableViewFake> table = std::make_shared<TableViewFake>();
    std::shared_ptr<WebContainerViewFake> webContainer = std::make_shared<WebContainerViewFake>();
};

} // namespace brindle
