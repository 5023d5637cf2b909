#include "desktop/system/StatusNotifierItem.hpp"

#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"
#include "tests/desktop/SignalCatcher.hpp"
#include "tests/desktop/StatusNotifierWatcherFake.hpp"

#include <QDBusConnectionInterface>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");

class StatusNotifierItemTest : public testing::Test {
protected:
    StatusNotifierItemTest() : _panel(_bus.connect()) {}

    void makeWatcher() { _watcher = std::make_unique<StatusNotifierWatcherFake>(_panel); }
    void makeItem() { _item = std::make_unique<StatusNotifierItem>(_bus.connect()); }
    bool becomesShown(bool isShown) {
        return runEventLoop([&] { return _item->isShown() == isShown; });
    }
    QString service() const { return _watcher->items.constFirst(); }
    QVariant property(const char* name) {
        return PrivateBus::property(_panel, service(), QLatin1String(StatusNotifierItem::itemPath), itemInterface, QLatin1String(name));
    }

    PrivateBus _bus;
    QDBusConnection _panel;
    std::unique_ptr<StatusNotifierWatcherFake> _watcher;
    std::unique_ptr<StatusNotifierItem> _item;
};

} // namespace

TEST_F(StatusNotifierItemTest, IsNotShownWithoutAWatcher) {
    makeItem();
    ASSERT_TRUE(runEventLoop([this] { return _item->isAnswered(); }));
    EXPECT_FALSE(_item->isShown());
}

TEST_F(StatusNotifierItemTest, RegistersWithTheWatcher) {
    makeWatcher();
    makeItem();
    ASSERT_TRUE(becomesShown(true));
    EXPECT_EQ(_watcher->items.size(), 1);
    EXPECT_TRUE(_panel.interface()->isServiceRegistered(service()));
}

TEST_F(StatusNotifierItemTest, IsNotShownWhereNoPanelIs) {
    makeWatcher();
    _watcher->hasHost = false;
    makeItem();
    ASSERT_TRUE(runEventLoop([this] { return _item->isAnswered(); }));
    EXPECT_EQ(_watcher->items.size(), 1);
    EXPECT_FALSE(_item->isShown());
    _watcher->hasHost = true;
    emit _watcher->StatusNotifierHostRegistered();
    EXPECT_TRUE(becomesShown(true));
}

TEST_F(StatusNotifierItemTest, RegistersAgainWhenTheWatcherComesBack) {
    makeWatcher();
    makeItem();
    ASSERT_TRUE(becomesShown(true));
    const QSignalSpy changes(_item.get(), &StatusNotifierItem::isShownChanged);
    _watcher->stop();
    ASSERT_TRUE(becomesShown(false));
    _watcher->start();
    ASSERT_TRUE(becomesShown(true));
    EXPECT_EQ(_watcher->items.size(), 1);
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(StatusNotifierItemTest, TellsHowItLooks) {
    makeWatcher();
    makeItem();
    ASSERT_TRUE(becomesShown(true));
    QImage image(2, 1, QImage::Format_ARGB32);
    image.fill(QColor(1, 2, 3, 255));
    _item->setLook(
        {{DBusImage::make(image)}, QStringLiteral("Brindle"), QStringLiteral("Brindle (3)\n<paused>"), QStringLiteral("3 unread")});
    EXPECT_EQ(property("Title").toString(), QStringLiteral("Brindle"));
    EXPECT_EQ(property("Status").toString(), QStringLiteral("Active"));
    EXPECT_EQ(property("IconAccessibleDesc").toString(), QStringLiteral("3 unread"));
    EXPECT_FALSE(property("ItemIsMenu").toBool());
    const auto icon = qdbus_cast<DBusImages>(property("IconPixmap"));
    ASSERT_EQ(icon.size(), 1);
    EXPECT_EQ(icon[0].width, 2);
    EXPECT_EQ(icon[0].bytes, QByteArray("\xff\x01\x02\x03\xff\x01\x02\x03", 8));
    const auto toolTip = qdbus_cast<DBusToolTip>(property("ToolTip"));
    EXPECT_EQ(toolTip.title, QStringLiteral("Brindle (3)"));
    EXPECT_EQ(toolTip.text, QStringLiteral("&lt;paused&gt;"));
}

TEST_F(StatusNotifierItemTest, TellsPanelsOfWhatDiffers) {
    makeWatcher();
    makeItem();
    ASSERT_TRUE(becomesShown(true));
    const SignalCatcher titles(_panel, itemInterface, QStringLiteral("NewTitle"));
    const SignalCatcher icons(_panel, itemInterface, QStringLiteral("NewIcon"));
    const SignalCatcher toolTips(_panel, itemInterface, QStringLiteral("NewToolTip"));
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(QColor(1, 2, 3, 255));
    StatusNotifierItem::Look look = {
        {DBusImage::make(image)}, QStringLiteral("Brindle"), QStringLiteral("Brindle"), QStringLiteral("none")};
    _item->setLook(look);
    _item->setLook(look);
    look.toolTip = QStringLiteral("Brindle (3)");
    _item->setLook(look);
    image.fill(QColor(3, 2, 1, 255));
    look.icon = {DBusImage::make(image)};
    _item->setLook(look);
    look.description = QStringLiteral("3 unread");
    _item->setLook(look);
    // The answer comes after the signals.
    EXPECT_EQ(property("IconAccessibleDesc").toString(), QStringLiteral("3 unread"));
    EXPECT_EQ(titles.messages.size(), 1);
    EXPECT_EQ(icons.messages.size(), 3);
    EXPECT_EQ(toolTips.messages.size(), 2);
}

TEST_F(StatusNotifierItemTest, TellsWhereItWasClicked) {
    makeWatcher();
    makeItem();
    ASSERT_TRUE(becomesShown(true));
    QList<QPoint> places;
    QObject::connect(_item.get(), &StatusNotifierItem::activated, _item.get(), [&](const QPoint& place) { places.append(place); });
    for (const char* const method : {"Activate", "ContextMenu", "SecondaryActivate"}) {
        PrivateBus::call(_panel, service(), QLatin1String(StatusNotifierItem::itemPath), itemInterface, QLatin1String(method), {30, 40});
        EXPECT_EQ(places.takeFirst(), QPoint(30, 40)) << method;
    }
}

TEST_F(StatusNotifierItemTest, LeavesTheBusAtItsEnd) {
    makeWatcher();
    makeItem();
    ASSERT_TRUE(becomesShown(true));
    const QString name = service();
    _item.reset();
    EXPECT_FALSE(_panel.interface()->isServiceRegistered(name));
}

TEST_F(StatusNotifierItemTest, DoesNothingWithoutABus) {
    StatusNotifierItem item((QDBusConnection(QStringLiteral("no such bus"))));
    item.setLook({});
    item.setMenu(nullptr);
    EXPECT_FALSE(item.isShown());
}

} // namespace brindle::desktop
