#include "desktop/system/StatusArea.hpp"

#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"
#include "tests/desktop/SignalCatcher.hpp"
#include "tests/desktop/StatusNotifierWatcherFake.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");

class StatusAreaTest : public testing::Test {
protected:
    StatusAreaTest() : _panel(_bus.connect()), _watcher(_panel), _area(_bus.connect()) {
        _chain->setHandlers({_handler});
        _area.setResponderChain(_chain);
        _menu->addItem(std::make_shared<MenuItem>("Item", "act:"));
    }

    void SetUp() override {
        ASSERT_TRUE(runEventLoop([this] { return _area.hasStatusArea(); }));
    }
    QVariant property(const char* name) {
        return PrivateBus::property(
            _panel, _watcher.items.constFirst(), QLatin1String(StatusNotifierItem::itemPath), itemInterface, QLatin1String(name));
    }
    void click() {
        PrivateBus::call(_panel, _watcher.items.constFirst(), QLatin1String(StatusNotifierItem::itemPath), itemInterface,
            QStringLiteral("Activate"), {20, 20});
    }

    PrivateBus _bus;
    QDBusConnection _panel;
    StatusNotifierWatcherFake _watcher;
    StatusArea _area;
    std::shared_ptr<ActionHandlerFake> _handler = std::make_shared<ActionHandlerFake>();
    std::shared_ptr<ResponderChain> _chain = std::make_shared<ResponderChain>();
    std::shared_ptr<Menu> _menu = std::make_shared<Menu>();
};

} // namespace

TEST_F(StatusAreaTest, ShowsTheImageInAllSizesAndTheToolTip) {
    _area.setImage(Image::named("menu_feed_alt"));
    _area.setTitle("3");
    _area.setToolTip("Brindle (3)");
    ASSERT_TRUE(runEventLoop([this] { return !property("IconAccessibleDesc").toString().isEmpty(); }));
    EXPECT_EQ(property("IconAccessibleDesc").toString(), QStringLiteral("Brindle (3)"));
    EXPECT_EQ(qdbus_cast<DBusImages>(property("IconPixmap")).size(), 7);
}

TEST_F(StatusAreaTest, SaysThatUpdatesArePaused) {
    _area.setImage(Image::named("menu_feed").slashed());
    _area.setToolTip("Brindle");
    ASSERT_TRUE(runEventLoop([this] { return !property("IconAccessibleDesc").toString().isEmpty(); }));
    const auto toolTip = qdbus_cast<DBusToolTip>(property("ToolTip"));
    EXPECT_EQ(toolTip.title, QStringLiteral("Brindle"));
    EXPECT_EQ(toolTip.text, QStringLiteral("Updates are paused."));
}

TEST_F(StatusAreaTest, TellsDetailsInTheToolTip) {
    _area.setDetails([] { return std::string("Feeds that can't be reached: 2"); });
    _area.setImage(Image::named("menu_feed"));
    _area.setToolTip("Brindle");
    ASSERT_TRUE(runEventLoop([this] { return !property("IconAccessibleDesc").toString().isEmpty(); }));
    EXPECT_EQ(qdbus_cast<DBusToolTip>(property("ToolTip")).text, QStringLiteral("Feeds that can't be reached: 2"));
}

TEST_F(StatusAreaTest, AsksForTheDetailsOnceTheyMayBeOthers) {
    std::string details;
    _area.setDetails([&] { return details; });
    _area.setImage(Image::named("menu_feed"));
    _area.setToolTip("Brindle");
    ASSERT_TRUE(runEventLoop([this] { return !property("IconAccessibleDesc").toString().isEmpty(); }));
    details = "Feeds that can't be reached: 1";
    _area.detailsChanged();
    EXPECT_TRUE(runEventLoop([this] { return !qdbus_cast<DBusToolTip>(property("ToolTip")).text.isEmpty(); }));
}

TEST_F(StatusAreaTest, TellsPanelsNothingWhereAllIsSetAsItWas) {
    const SignalCatcher icons(_panel, itemInterface, QStringLiteral("NewIcon"));
    int updates = 0;
    _area.setDetails([&] {
        ++updates;
        return std::string();
    });
    for (int turn = 1; turn <= 2; ++turn) {
        _area.setImage(Image::named("menu_feed_alt"));
        _area.setTitle("3");
        _area.setToolTip("Brindle (3)");
        ASSERT_TRUE(runEventLoop([&] { return updates == turn; }));
    }
    EXPECT_EQ(property("IconAccessibleDesc").toString(), QStringLiteral("Brindle (3)"));
    EXPECT_EQ(icons.messages.size(), 1);
}

TEST_F(StatusAreaTest, OpensTheMenuOnAClickAndClosesItOnTheNext) {
    _area.setMenu(_menu);
    click();
    ASSERT_NE(_area.menuView(), nullptr);
    EXPECT_TRUE(_area.menuView()->isVisible());
    EXPECT_EQ(_area.menuView()->actions().size(), 1);
    click();
    EXPECT_FALSE(_area.menuView()->isVisible());
}

TEST_F(StatusAreaTest, ExportsTheMenu) {
    _area.setMenu(_menu);
    EXPECT_EQ(property("Menu").value<QDBusObjectPath>().path(), QLatin1String(StatusNotifierItem::menuPath));
    const QDBusMessage answer = PrivateBus::call(_panel, _watcher.items.constFirst(), QLatin1String(StatusNotifierItem::menuPath),
        QStringLiteral("com.canonical.dbusmenu"), QStringLiteral("GetLayout"), {0, -1, QStringList()});
    EXPECT_EQ(qdbus_cast<DBusMenuLayout>(answer.arguments().at(1)).children.size(), 1);
}

TEST_F(StatusAreaTest, TellsWhenThereIsNoAreaAnyMore) {
    const QSignalSpy changes(&_area, &StatusArea::hasStatusAreaChanged);
    _watcher.stop();
    ASSERT_TRUE(runEventLoop([this] { return !_area.hasStatusArea(); }));
    _watcher.start();
    ASSERT_TRUE(runEventLoop([this] { return _area.hasStatusArea(); }));
    EXPECT_EQ(changes.size(), 2);
}

} // namespace brindle::desktop
