#pragma once

#include "Brindle/browser/MediaPlayerWindowController.hpp"
#include "Brindle/menu/ArticlePreview.hpp"
#include "Brindle/shell/NewFeedWindowController.hpp"
#include "Brindle/shell/PreferencesWindowController.hpp"
#include "Brindle/shell/SplashWindow.hpp"
#include "desktop/toolkit/StatusMenu.hpp"
#include "desktop/windows/QtWindow.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/Alert.hpp"

#include <memory>

/// The windows beside the feeds browser, each with its controller, loaded and not yet shown. None is null. Thread: main.
namespace brindle::desktop {

std::shared_ptr<SplashWindow> makeSplashWindow(const WindowEnvironment& windows, std::shared_ptr<StatusMenu> statusMenu);
std::shared_ptr<MediaPlayerWindowController> makeMediaPlayer(const WindowEnvironment& windows, std::shared_ptr<AlertPresenter> alerts);
std::shared_ptr<PreferencesWindowController> makePreferencesWindow(
    const WindowEnvironment& windows, const PreferencesEnvironment& environment);
std::shared_ptr<NewFeedWindowController> makeNewFeedWindow(const WindowEnvironment& windows, const NewFeedEnvironment& environment);

/// Shows the texts of articles in the menu.
std::shared_ptr<ArticlePreviewFactory> makeArticlePreviewFactory(std::shared_ptr<const UserDefaults> defaults);

} // namespace brindle::desktop
