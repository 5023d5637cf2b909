#pragma once

#include "Brindle/shell/AppDelegate.hpp"
#include "desktop/toolkit/RunLoopBridge.hpp"
#include "desktop/toolkit/StatusMenu.hpp"
#include "tests/fakes/StatusItemFake.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

/// The application over the sample feeds, with the real windows on an otherwise absent desktop: its clock stands still, and it asks nothing
/// of the network. Thread: main.
class SampleApplication {
public:
    /// `resources` is the folder of the program's resources.
    explicit SampleApplication(const std::filesystem::path& resources);
    ~SampleApplication();

    AppDelegate& delegate() { return *_delegate; }
    const std::shared_ptr<AppDelegate>& sharedDelegate() const { return _delegate; }
    const std::shared_ptr<Menu>& statusMenu() const { return _statusItem->menu; }
    WindowFactory& windows() { return *_environment.windows; }
    const AppDelegateEnvironment& environment() const { return _environment; }

    /// Starts it, and subscribes to the samples: some on their own, some in a group.
    void start();
    std::shared_ptr<FeedItem> makeFeed(const std::string& name, const std::string& address);

private:
    std::shared_ptr<FeedItem> readSample(const std::string& file);

    RunLoopBridge _runLoop;
    TemporaryFolder _folder;
    const std::filesystem::path _resources;
    const std::shared_ptr<StatusItemFake> _statusItem = std::make_shared<StatusItemFake>();
    const std::shared_ptr<StatusMenu> _statusMenu = std::make_shared<StatusMenu>();
    AppDelegateEnvironment _environment;
    std::shared_ptr<AppDelegate> _delegate;
};

} // namespace brindle::desktop
