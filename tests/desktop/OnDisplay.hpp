#pragma once

#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/Panel.hpp"

#include <QCoreApplication>
#include <QGuiApplication>
#include <gtest/gtest.h>
#include <string>

namespace brindle::desktop {

/// Whether this process draws on a display; tests do so only where one of them started them for that.
inline bool isOnDisplay() {
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

/// Runs the present test once more, in a process of its own and on a display with a window manager.
inline void repeatOnDisplay() {
    const Panel panel;
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("DISPLAY"), panel.display());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
        {QStringLiteral("--gtest_filter=%1.%2").arg(QLatin1String(test.test_suite_name()), QLatin1String(test.name()))});
    EXPECT_TRUE(runEventLoop([&] { return process.state() == QProcess::NotRunning; }));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardOutput().toStdString();
}

} // namespace brindle::desktop

/// Continues with the running test only on a display.
#define BRINDLE_RUN_ON_DISPLAY()                                                                                                           \
    BRINDLE_REQUIRE_PANEL()                                                                                                                \
    if (!brindle::desktop::isOnDisplay())                                                                                                  \
    return brindle::desktop::repeatOnDisplay()
