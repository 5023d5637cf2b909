#pragma once

#include "Brindle/menu/ArticlePreview.hpp"
#include "Brindle/shell/Preferences.hpp"
#include "Brindle/shell/WindowFactory.hpp"
#include "SyndicatedParser/SyndicatedSession.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/Alert.hpp"
#include "platform/Application.hpp"
#include "platform/DistributedNotificationCenter.hpp"
#include "platform/DockTile.hpp"
#include "platform/FilePanels.hpp"
#include "platform/ImageDecoder.hpp"
#include "platform/LaunchServices.hpp"
#include "platform/LoginItem.hpp"
#include "platform/RunningApplications.hpp"
#include "platform/SpeechSynthesizer.hpp"
#include "platform/StatusItem.hpp"
#include "platform/SystemEvents.hpp"
#include "platform/UserNotificationCenter.hpp"
#include "platform/Workspace.hpp"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace brindle {

/// What the desktop supplies to the application. Nothing of it is null but `previews`. Thread: main.
struct AppDelegateEnvironment {
    std::filesystem::path supportDirectory; ///< `applicationSupportDirectory`
    std::filesystem::path resources;        ///< the folder of the program's resources
    std::string defaultFeedAddress;         ///< of the program's own news feed
    bool hasApplicationMenu = true;         ///< whether the desktop shows a menu of the application beside that of the status item
    bool startsInBackground = false;        ///< whether the feeds browser stays away at the start, whatever the preferences say
    std::optional<std::string> bundleIdentifier;
    std::string launcherApplicationBundleID;
    SyndicatedSessionEnvironment sessions;
    std::shared_ptr<UserDefaults> defaults;
    PlatformDefaults platformDefaults;

    std::shared_ptr<Application> application;
    std::shared_ptr<AlertPresenter> alerts;
    std::shared_ptr<FilePanels> panels;
    std::shared_ptr<StatusItem> statusItem;
    std::shared_ptr<DockTile> dockTile;
    std::shared_ptr<ArticlePreviewFactory> previews;
    std::shared_ptr<WindowFactory> windows;
    std::shared_ptr<ImageDecoder> imageDecoder;
    std::shared_ptr<UserNotificationCenter> userNotificationCenter;
    std::shared_ptr<SpeechVoices> speechVoices;
    std::function<std::shared_ptr<SpeechSynthesizer>()> makeSynthesizer;

    std::shared_ptr<Workspace> workspace;
    std::shared_ptr<SystemEvents> systemEvents;
    std::shared_ptr<LaunchServices> launchServices;
    std::shared_ptr<LoginItem> loginItem;
    std::shared_ptr<RunningApplications> runningApplications;
    std::shared_ptr<DistributedNotificationCenter> distributedNotificationCenter;
};

} // namespace brindle
