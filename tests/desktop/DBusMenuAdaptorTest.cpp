#include "desktop/system/StatusNotifierItem.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"
#include "tests/desktop/SignalCatcher.hpp"
#include "tests/desktop/StatusNotifierWatcherFake.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"
#include "tests/fakes/MenuDelegateFake.hpp"

#include <gmock/gmock.h>

namespace brindle::desktop {

using testing::ElementsAre;

namespace {

/// A menu as a panel has it.
class DBusMenuAdaptorTest : public testing::Test {
protected:
    void SetUp() override {
        _chain->setHandlers({_handler});
        _item = std::make_unique<StatusNotifierItem>(_bus.connect());
        ASSERT_TRUE(runEventLoop([this] { return _item->isShown(); }));
        _menu->addItem(std::make_shared<MenuItem>("Item", "doIt:"));
        _item->setMenu(MenuExport::make(_menu, _chain));
        const QDBusMessage answer = call("GetLayout", {0, -1, QStringList()});
        ASSERT_EQ(answer.signature(), QStringLiteral("u(ia{sv}av)")) << answer.errorMessage().toStdString();
        const auto layout = qdbus_cast<DBusMenuLayout>(answer.arguments().at(1));
        ASSERT_EQ(layout.children.size(), 1);
        _first = qdbus_cast<DBusMenuLayout>(layout.children.constFirst().value<QDBusArgument>());
    }
    QDBusMessage call(const char* method, const QVariantList& arguments) {
        return PrivateBus::call(
            _panel, _watcher.items.constFirst(), QLatin1String(StatusNotifierItem::menuPath), interface, QLatin1String(method), arguments);
    }

    const QString interface = QStringLiteral("com.canonical.dbusmenu");
    const QVariant noData = QVariant::fromValue(QDBusVariant(0));
    const std::shared_ptr<ActionHandlerFake> _handler = std::make_shared<ActionHandlerFake>();
    const std::shared_ptr<ResponderChain> _chain = std::make_shared<ResponderChain>();
    const std::shared_ptr<MenuDelegateFake> _delegate = std::make_shared<MenuDelegateFake>();
    const std::shared_ptr<Menu> _menu = std::make_shared<Menu>();
    PrivateBus _bus;
    const QDBusConnection _panel = _bus.connect();
    StatusNotifierWatcherFake _watcher{_panel};
    std::unique_ptr<StatusNotifierItem> _item;
    DBusMenuLayout _first; ///< the item
};

} // namespace

TEST_F(DBusMenuAdaptorTest, TellsItsItems) {
    EXPECT_EQ(_first.properties.value("label"), "Item");
    const QDBusMessage answer = call("GetGroupProperties", {QVariant::fromValue(QList<int>{_first.id}), QStringList()});
    const auto told = qdbus_cast<DBusMenuPropertiesList>(answer.arguments().value(0));
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0].id, _first.id);
    EXPECT_EQ(told[0].properties.value("label"), "Item");
}

TEST_F(DBusMenuAdaptorTest, HearsWhenItIsOpenedAndClosed) {
    _menu->delegate = _delegate;
    call("AboutToShow", {0});
    call("Event", {0, "opened", noData, 0U});
    EXPECT_THAT(_delegate->log, ElementsAre("menuWillOpen"));
    call("Event", {0, "closed", noData, 0U});
    EXPECT_THAT(_delegate->log, ElementsAre("menuWillOpen", "menuDidClose"));
}

TEST_F(DBusMenuAdaptorTest, PerformsWhatWasClicked) {
    EXPECT_EQ(call("Event", {_first.id, "clicked", noData, 0U}).type(), QDBusMessage::ReplyMessage);
    ASSERT_TRUE(runEventLoop([this] { return !_handler->log.empty(); }));
    EXPECT_THAT(_handler->log, ElementsAre("doIt:"));
}

TEST_F(DBusMenuAdaptorTest, TakesSeveralEventsAtOnce) {
    const DBusMenuEvents events = {{_first.id, "clicked", QDBusVariant(0), 0}, {4711, "clicked", QDBusVariant(0), 0}};
    const QDBusMessage answer = call("EventGroup", {QVariant::fromValue(events)});
    EXPECT_EQ(qdbus_cast<QList<int>>(answer.arguments().value(0)), QList<int>{4711}) << answer.errorMessage().toStdString();
    ASSERT_TRUE(runEventLoop([this] { return !_handler->log.empty(); }));
    EXPECT_THAT(_handler->log, ElementsAre("doIt:"));
}

TEST_F(DBusMenuAdaptorTest, TellsTheChangeOfAnItem) {
    const SignalCatcher updates(_panel, interface, QStringLiteral("ItemsPropertiesUpdated"));
    _menu->items().front()->setTitle("Other");
    ASSERT_TRUE(runEventLoop([&] { return !updates.messages.isEmpty(); }));
    const QDBusMessage& told = updates.messages.constFirst();
    EXPECT_EQ(told.signature(), QStringLiteral("a(ia{sv})a(ias)"));
    const auto changed = qdbus_cast<DBusMenuPropertiesList>(told.arguments().at(0));
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0].id, _first.id);
    EXPECT_EQ(changed[0].properties.value("label"), "Other");
}

TEST_F(DBusMenuAdaptorTest, TellsThatItIsAnother) {
    const SignalCatcher updates(_panel, interface, QStringLiteral("LayoutUpdated"));
    _menu->addItem(std::make_shared<MenuItem>("New"));
    ASSERT_TRUE(runEventLoop([&] { return !updates.messages.isEmpty(); }));
    EXPECT_EQ(updates.messages.constFirst().arguments().at(1), 0);
}

} // namespace brindle::desktop
