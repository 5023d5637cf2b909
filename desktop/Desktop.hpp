#pragma once

#include "Brindle/shell/AppDelegate.hpp"
#include "desktop/NewsFeed.hpp"
#include "desktop/Options.hpp"
#include "desktop/system/ColorScheme.hpp"
#include "desktop/system/LogindSystemEvents.hpp"
#include "desktop/system/MemoryRelease.hpp"
#include "desktop/system/SingleInstance.hpp"
#include "desktop/system/StatusArea.hpp"
#include "desktop/system/TerminationSignals.hpp"
#include "desktop/toolkit/RunLoopBridge.hpp"
#include "desktop/toolkit/StatusMenu.hpp"

#include <QObject>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <vector>

namespace brindle::desktop {

/// The program on its desktop: hands the application what the desktop supplies, and sees to it that a person can always reach it. One for a
/// process. Thread: main.
class Desktop : public QObject {
    Q_OBJECT

public:
    /// How long the program goes without a status area and without a window before it shows its browser.
    static constexpr std::chrono::milliseconds unreachableLimit{5000};

    /// `supportDirectory` is the folder of the library, `resources` that of the program's resources.
    Desktop(const Options& options, const std::filesystem::path& supportDirectory, const std::filesystem::path& resources,
        SingleInstance& instance);
    ~Desktop() override;

    /// Starts the application, runs until it ends, and saves; the process's exit status.
    int run();

private:
    AppDelegateEnvironment environment(const Options& options, const std::filesystem::path& supportDirectory);
    void connectInstance(const SingleInstance& instance);
    void connectEnds();
    void connectStatusArea();
    void watchFeeds();
    std::string failingFeeds() const;
    void show(const QString& token);
    void perform(std::string_view action);
    void open(const Options& request);
    void openFiles();
    void followStatusArea();
    void showWhereUnreachable();
    bool isLaunched() const;
    void save();

    RunLoopBridge _runLoop;
    const MemoryRelease _memoryRelease;
    ColorScheme _colorScheme;
    const std::filesystem::path _resources;
    const NewsFeed _newsFeed;
    const std::shared_ptr<UserDefaults> _defaults;
    const std::shared_ptr<StatusArea> _statusArea;
    const std::shared_ptr<StatusMenu> _statusMenu = std::make_shared<StatusMenu>();
    const std::shared_ptr<LogindSystemEvents> _systemEvents;
    TerminationSignals _terminationSignals;
    std::shared_ptr<AppDelegate> _delegate;
    NotificationCenter::Token _newsFeedObserver;
    bool _isBrowserDue = false;                ///< to be shown once the library is there
    std::vector<std::filesystem::path> _files; ///< to be opened once the library is there
    QTimer _unreachableTimer;
};

} // namespace brindle::desktop
