#include <QApplication>
#include <QByteArray>
#include <gtest/gtest.h>

/// The tests share one application object, on no screen unless told otherwise.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setQuitOnLastWindowClosed(false);
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
