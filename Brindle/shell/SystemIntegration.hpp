#pragma once

#include "foundation/UserDefaults.hpp"
#include "platform/Alert.hpp"
#include "platform/Application.hpp"
#include "platform/DistributedNotificationCenter.hpp"
#include "platform/LaunchServices.hpp"
#include "platform/LoginItem.hpp"
#include "platform/RunningApplications.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace brindle {

/// The program's ties to the desktop: who opens addresses of the scheme "feed", the launcher that starts the program at login, and whether
/// the program is listed among the running ones. Each has a preference of its own. Thread: main.
class SystemIntegration : public std::enable_shared_from_this<SystemIntegration> {
public:
    static constexpr std::string_view feedScheme = "feed";
    /// Asks the launcher to end; its object is the program's bundle identifier.
    static constexpr std::string_view terminateLauncherNotification = "BrindleTerminateLauncher";

    struct Environment {
        std::shared_ptr<UserDefaults> defaults;
        std::shared_ptr<Application> application;
        std::shared_ptr<AlertPresenter> alerts;
        std::shared_ptr<LaunchServices> launchServices;
        std::shared_ptr<LoginItem> loginItem;
        std::shared_ptr<RunningApplications> runningApplications;
        std::shared_ptr<DistributedNotificationCenter> distributedNotificationCenter;
        std::optional<std::string> bundleIdentifier; ///< the program's own; absent where it is not installed as one
        std::string launcherApplicationBundleID;
    };

    static std::shared_ptr<SystemIntegration> make(Environment environment) {
        return std::shared_ptr<SystemIntegration>(new SystemIntegration(std::move(environment)));
    }

    /// Asks, once, whether the program is to open feeds' addresses. Kept as is: only where no program does, or this one already.
    /// `completion` is called in any case.
    void askSetAsDefaultFeedReader(std::function<void()> completion);
    bool isDefaultFeedReader() const;
    /// By the state of a button: takes the scheme, or gives it back to the program that it was taken from here.
    void toggleDefaultFeedReader(bool isOn);

    /// A failure prints a line, and the preference stays as chosen.
    void toggleLaunchOnLogin(bool isOn);
    void setLaunchOnLogin(bool isOn);
    /// The launcher has done its work when the program runs.
    void terminateLauncherIfRunning();

    /// By the state of a button: whether the program keeps out of the list of running programs, from its next launch on. Asks first;
    /// `setButton` puts the button back when the person cancels.
    void toggleBackgroundOnly(bool isOn, std::function<void(bool)> setButton);

private:
    explicit SystemIntegration(Environment environment) : _environment(std::move(environment)) {}
    void becomeDefaultFeedReader(const std::optional<std::string>& previous);

    const Environment _environment;
};

} // namespace brindle
