#include "desktop/system/QtWorkspace.hpp"

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

/// Stands for the desktop's programs.
class OpenerFake : public QObject {
    Q_OBJECT

public:
    OpenerFake() {
        for (const QString& scheme : _schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~OpenerFake() override {
        for (const QString& scheme : _schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QStringList opened;

public slots:
    void open(const QUrl& url) { opened.append(url.toString(QUrl::FullyEncoded)); }

private:
    const QStringList _schemes = {QStringLiteral("https"), QStringLiteral("mailto"), QStringLiteral("file")};
};

} // namespace

TEST(QtWorkspaceTest, OpensAddressesAsTheyAre) {
    const OpenerFake desktop;
    QtWorkspace workspace;
    workspace.openURL(*URL::make("https://a.example/%7Eb?c=%26d#e"));
    workspace.openURL(*URL::make("mailto:ada@a.example"));
    EXPECT_EQ(desktop.opened, QStringList({"https://a.example/~b?c=%26d#e", "mailto:ada@a.example"}));
}

TEST(QtWorkspaceTest, OpensNoFilesOfThisMachine) {
    const OpenerFake desktop;
    QtWorkspace workspace;
    for (const char* const address : {"file:///etc/passwd", "FILE:///etc/passwd", "etc/passwd", "//a.example/x"}) {
        if (const auto url = URL::make(address))
            workspace.openURL(*url);
    }
    EXPECT_EQ(desktop.opened, QStringList());
}

} // namespace brindle::desktop

#include "QtWorkspaceTest.moc"
