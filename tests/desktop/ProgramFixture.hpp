#pragma once

#include "foundation/FileManager.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"
#include "tests/support/Folders.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <QDBusConnectionInterface>
#include <QProcess>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brindle::desktop {

/// The program itself, on no screen, on a bus and in a home of its own.
class ProgramFixture : public testing::Test {
protected:
    ~ProgramFixture() override {
        for (const auto& process : _processes)
            desktop::stop(*process);
    }

    QProcess& start(const QStringList& arguments) {
        QProcessEnvironment environment = _bus.environment();
        const QString home = QString::fromStdString(_home.path().string());
        for (const char* const name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            environment.insert(QLatin1String(name), home);
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), _platform);
        for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(QLatin1String(name));
        if (!_display.isEmpty())
            environment.insert(QStringLiteral("DISPLAY"), _display);
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        for (const auto& [name, value] : _variables)
            environment.insert(name, value);
        auto& process = *_processes.emplace_back(std::make_unique<QProcess>());
        process.setProcessEnvironment(environment);
        process.start(QString::fromStdString(testsupport::buildFolder() + "/bin/brindle"), arguments);
        EXPECT_TRUE(process.waitForStarted());
        return process;
    }
    /// Its exit status.
    static int finish(QProcess& process) {
        EXPECT_TRUE(runEventLoop([&] { return process.state() == QProcess::NotRunning; }));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }
    bool runs(const QString& name = QStringLiteral("org.brindle.Brindle")) {
        const QDBusConnection observer = _bus.connect();
        return runEventLoop([&] { return observer.interface()->isServiceRegistered(name); });
    }
    /// No first launch with its questions.
    void setUpPreferences() {
        write("brindle/Preferences.plist",
            R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict><key>isFrstLaunch</key><false/></dict></plist>)");
    }
    void write(const std::string& name, std::string_view text) {
        const std::filesystem::path file = _home.path() / name;
        ASSERT_TRUE(FileManager::createDirectory(file.parent_path()));
        ASSERT_TRUE(FileManager::writeAtomically(file, text));
    }
    static bool hasBuiltItsMenu(QProcess& program) {
        return runEventLoop([&] { return console(program).find("Building Menu...") != std::string::npos; });
    }
    /// Runs the program until it has tried to fetch a feed that it was given, asks it to end, and gives the file of its library.
    auto librarySavedAtTheEnd() {
        setUpPreferences();
        QProcess& program = start({QStringLiteral("--background"), QStringLiteral("https://c.invalid/feed")});
        EXPECT_TRUE(runEventLoop([&] { return console(program).find("A connection error occured") != std::string::npos; }));
        program.terminate();
        EXPECT_EQ(finish(program), 0);
        return FileManager::contents(_home / "Brindle/Feeds.brindle");
    }
    /// What has been written to its console so far.
    static std::string console(QProcess& process) {
        process.setReadChannel(QProcess::StandardOutput);
        return process.peek(1 << 20).toStdString();
    }

    PrivateBus _bus;
    TemporaryFolder _home;
    QString _platform = QStringLiteral("offscreen");
    QString _display;                      ///< of X11; empty: none
    std::map<QString, QString> _variables; ///< more of the environment
    std::vector<std::unique_ptr<QProcess>> _processes;
};

} // namespace brindle::desktop
