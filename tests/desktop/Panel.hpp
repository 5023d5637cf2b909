#pragma once

#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"
#include "tests/desktop/VirtualDisplay.hpp"

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QStringList>
#include <gtest/gtest.h>
#include <memory>

namespace brindle::desktop {

/// What one of the tools for X11 says; empty where it fails.
inline QString runTool(const QString& tool, const QStringList& arguments, const QProcessEnvironment& environment) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(tool, arguments);
    process.waitForFinished();
    return process.exitCode() == 0 ? QString::fromUtf8(process.readAllStandardOutput()).trimmed() : QString();
}

/// The numbers of the windows that a window manager manages, from the lowest to the highest.
inline QStringList windowStack(const QProcessEnvironment& environment) {
    const QString told =
        runTool(QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST_STACKING")}, environment);
    return told.section(QLatin1Char('#'), 1).remove(QLatin1Char(' ')).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

/// A display of X11 with a window manager, and a panel with the older tray where a test wants one.
class Panel {
public:
    explicit Panel(const QString& busAddress = {}) {
        _environment.insert(QStringLiteral("DISPLAY"), _display.name());
        _environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), busAddress);
        start(_windowManager, QStringLiteral("openbox"));
        // What maps a window while the manager is about to begin may wait for ever.
        const auto manages = [this] {
            return run(QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK")})
                .contains(QLatin1String("window id"));
        };
        EXPECT_TRUE(runEventLoop(manages));
    }
    ~Panel() {
        endTray();
        stop(_windowManager);
    }
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    /// What it takes that this machine has not.
    static QStringList missingPrograms() {
        QStringList missing;
        for (const char* const name : {"openbox", "trayer", "xdotool", "xprop", "xwininfo"}) {
            if (QStandardPaths::findExecutable(QLatin1String(name)).isEmpty())
                missing.append(QLatin1String(name));
        }
        return missing;
    }

    QString display() const { return _display.name(); }
    void startTray() { start(_tray, QStringLiteral("trayer")); }
    void endTray() { stop(_tray); }

    QString run(const QString& tool, const QStringList& arguments) const { return runTool(tool, arguments, _environment); }
    /// The windows on the screen whose title begins so, as numbers.
    QStringList windows(const QString& title) const {
        const QString found = run(QStringLiteral("xdotool"),
            {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"), QLatin1Char('^') + title});
        return found.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

private:
    void start(QProcess& process, const QString& program) {
        process.setProcessEnvironment(_environment);
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, {});
        EXPECT_TRUE(process.waitForStarted());
    }

    VirtualDisplay _display;
    QProcessEnvironment _environment = QProcessEnvironment::systemEnvironment();
    QProcess _windowManager;
    QProcess _tray;
};

} // namespace brindle::desktop

/// Ends the running test where this machine has no panel: skipped, or failed under CI=true.
#define BRINDLE_REQUIRE_PANEL()                                                                                                            \
    if (const QString missing = brindle::desktop::Panel::missingPrograms().join(QLatin1Char(' ')); !missing.isEmpty()) {                   \
        if (qgetenv("CI") == "true")                                                                                                       \
            FAIL() << "not installed: " << missing.toStdString();                                                                          \
        GTEST_SKIP() << "not installed: " << missing.toStdString();                                                                        \
    }
