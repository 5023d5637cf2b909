#include "desktop/toolkit/MenuView.hpp"

#include "desktop/toolkit/Text.hpp"
#include "desktop/toolkit/WidgetView.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"
#include "tests/fakes/MenuDelegateFake.hpp"

#include <QApplication>
#include <QLabel>
#include <QProxyStyle>
#include <QScreen>
#include <QTest>
#include <gmock/gmock.h>

namespace brindle::desktop {

using testing::ElementsAre;

namespace {

/// Notes which submenus were asked for.
class SubmenuSourceFake : public SubmenuSource {
public:
    std::shared_ptr<Menu> makeSubmenu(const MenuItem& item) override {
        asked.push_back(item.title());
        const auto menu = std::make_shared<Menu>();
        menu->addItem(std::make_shared<MenuItem>("below", "below:"));
        return menu;
    }

    std::vector<std::string> asked;
};

class MenuViewTest : public testing::Test {
protected:
    MenuViewTest() { _chain->setHandlers({_handler}); }

    std::shared_ptr<MenuItem> add(const std::string& title, std::string_view action = "act:") {
        const auto item = std::make_shared<MenuItem>(title, action);
        _menu->addItem(item);
        return item;
    }
    /// As it opens on the screen.
    MenuView& open() {
        _view->popup(QPoint(10, 10));
        EXPECT_TRUE(runEventLoop([this] { return _view->isVisible(); }));
        return *_view;
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> result;
        for (const QAction* const action : _view->actions())
            result.push_back(action->isSeparator() ? "-" : fromQString(action->text()));
        return result;
    }
    MenuView* submenu(int index) const {
        QAction* const action = _view->actions().at(index);
        emit _view->hovered(action);
        return qobject_cast<MenuView*>(action->menu());
    }

    std::shared_ptr<ActionHandlerFake> _handler = std::make_shared<ActionHandlerFake>();
    std::shared_ptr<ResponderChain> _chain = std::make_shared<ResponderChain>();
    std::shared_ptr<Menu> _menu = std::make_shared<Menu>();
    std::unique_ptr<MenuView> _view = std::make_unique<MenuView>(_menu, _chain);
};

} // namespace

TEST_F(MenuViewTest, ShowsTitlesAndSeparators) {
    add("First");
    _menu->addItem(MenuItem::separatorItem());
    add("Salt & pepper\nand\tmore");
    open();
    EXPECT_THAT(texts(), ElementsAre("First", "-", "Salt && pepper and more"));
}

TEST_F(MenuViewTest, ShowsMarksStylesAndImages) {
    add("Plain");
    const auto marked = add("Marked");
    marked->setState(true);
    marked->setStyle(std::make_shared<TextStyle>(TextStyle{true, std::nullopt}));
    marked->setImage(Image::defaultFeedIcon().resized({16, 16}));
    const QList<QAction*> actions = open().actions();
    EXPECT_FALSE(actions[0]->isChecked());
    EXPECT_TRUE(actions[1]->isChecked());
    EXPECT_TRUE(actions[1]->font().bold());
    EXPECT_FALSE(actions[0]->font().bold());
    EXPECT_FALSE(actions[1]->icon().isNull());
    EXPECT_TRUE(_view->hasMarkColumn());
}

TEST_F(MenuViewTest, DrawsTheMarkInAColumnBeforeTheImage) {
    add("Item")->setState(true);
    add("Item");
    MenuView& view = open();
    const auto rendered = [&](int index) {
        const QRect place = view.actionGeometry(view.actions().at(index));
        return view.grab(QRect(place.topLeft() + QPoint(2, 2), QSize(16, place.height() - 4))).toImage();
    };
    const QImage plain = rendered(1);
    EXPECT_NE(rendered(0), plain);
    EXPECT_EQ(plain.copy(0, 0, 1, 1).pixel(0, 0), plain.pixel(8, plain.height() / 2));
}

TEST_F(MenuViewTest, AsksWhoTakesTheActionsWhenItOpens) {
    const auto item = add("Item");
    EXPECT_THAT(_handler->validated, ElementsAre());
    _handler->validates = false;
    EXPECT_FALSE(open().actions().front()->isEnabled());
    EXPECT_THAT(_handler->validated, ElementsAre("Item"));
}

TEST_F(MenuViewTest, TellsTheDelegateThatItOpensAndCloses) {
    const auto delegate = std::make_shared<MenuDelegateFake>();
    _menu->delegate = delegate;
    add("Item");
    open().hide();
    EXPECT_THAT(delegate->log, ElementsAre("menuWillOpen", "menuDidClose"));
}

TEST_F(MenuViewTest, StaysTheSameWhileItIsOpen) {
    add("First");
    open();
    _menu->removeAllItems();
    add("Second");
    EXPECT_THAT(texts(), ElementsAre("First"));
    _view->hide();
    open();
    EXPECT_THAT(texts(), ElementsAre("Second"));
}

TEST_F(MenuViewTest, PerformsTheActionOfTheChosenItem) {
    const auto item = add("Item", "doIt:");
    open().actions().front()->trigger();
    EXPECT_THAT(_handler->log, ElementsAre("doIt:"));
    EXPECT_EQ(_handler->senders.front(), item);
}

TEST_F(MenuViewTest, MakesASubmenuWhenSomebodyPointsAtItsItem) {
    const auto source = std::make_shared<SubmenuSourceFake>();
    add("One")->setSubmenuSource(source);
    add("Two")->setSubmenuSource(source);
    open();
    EXPECT_THAT(source->asked, ElementsAre());
    MenuView* const below = submenu(1);
    ASSERT_NE(below, nullptr);
    EXPECT_THAT(source->asked, ElementsAre("Two"));
    EXPECT_TRUE(below->actions().isEmpty());
    below->popup(QPoint(50, 10));
    EXPECT_EQ(below->actions().size(), 1);
}

TEST_F(MenuViewTest, ChoosesAnItemWithASubmenuByAClick) {
    const auto item = add("Feed", "openFeed:");
    const auto submenu = std::make_shared<Menu>();
    submenu->addItem(std::make_shared<MenuItem>("Article", "showArticle:"));
    item->setSubmenu(submenu);
    MenuView& view = open();
    const QPoint place = view.actionGeometry(view.actions().front()).center();
    QTest::mouseMove(&view, place);
    view.setActiveAction(view.actions().front());
    QTest::mouseClick(&view, Qt::LeftButton, {}, place);
    EXPECT_THAT(_handler->log, ElementsAre("openFeed:"));
    EXPECT_FALSE(view.isVisible());
}

TEST_F(MenuViewTest, ChoosesAnItemWithASubmenuByEnter) {
    const auto item = add("Feed", "openFeed:");
    item->setSubmenu(std::make_shared<Menu>());
    MenuView& view = open();
    view.setActiveAction(view.actions().front());
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_THAT(_handler->log, ElementsAre("openFeed:"));
}

TEST_F(MenuViewTest, GoesToTheItemWhoseTitleIsTyped) {
    const auto source = std::make_shared<SubmenuSourceFake>();
    for (const char* const title : {"General", "Pause", "Paris", "Garden"})
        add(title)->setSubmenuSource(source);
    MenuView& view = open();
    const auto typed = [&](const char* letter) {
        QTest::keyClicks(&view, QLatin1String(letter));
        return fromQString(view.activeAction()->text());
    };
    EXPECT_EQ(typed("p"), "Pause");
    EXPECT_EQ(typed("a"), "Pause");
    EXPECT_EQ(typed("r"), "Paris");
    EXPECT_EQ(typed("x"), "Paris");
    EXPECT_THAT(source->asked, ElementsAre("Pause", "Paris"));
}

TEST_F(MenuViewTest, ShowsAnItemsViewAndGivesItBack) {
    const auto item = add({}, {});
    auto* const label = new QLabel(QStringLiteral("Text"));
    item->setView(std::make_shared<WidgetView>(label));
    open();
    EXPECT_TRUE(label->isVisible());
    EXPECT_EQ(label->window(), _view.get());
    _view->hide();
    item->view()->removeFromSuperview();
    EXPECT_FALSE(label->isVisible());
    EXPECT_EQ(label->parentWidget(), nullptr);
}

TEST_F(MenuViewTest, ShowsATitleWholeAsFarAsTheScreenIsWide) {
    const std::string title = std::string(80, 'i') + " the end";
    add(title);
    add(std::string(100'000, 'm'));
    open();
    EXPECT_EQ(texts().front(), title);
    EXPECT_TRUE(QString::fromStdString(texts().back()).endsWith(QChar(0x2026)));
    const int room = _view->screen()->availableGeometry().width();
    EXPECT_LE(_view->width(), room);
    EXPECT_GT(_view->width(), room - 150);
}

TEST_F(MenuViewTest, HasTheStyleThatTheApplicationHasByNow) {
    const QString before = QApplication::style()->name();
    const auto styleName = [this] { return static_cast<QProxyStyle*>(open().style())->baseStyle()->name(); };
    add("Item");
    EXPECT_EQ(styleName(), before);
    _view->hide();
    QApplication::setStyle(QStringLiteral("windows"));
    EXPECT_EQ(styleName(), "windows");
    _view->hide();
    QApplication::setStyle(before);
    EXPECT_EQ(styleName(), before);
}

TEST_F(MenuViewTest, DrawsSeparatorsThatAreSeenByDark) {
    _view->setPalette(QPalette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::white, Qt::black, Qt::black));
    add("First");
    _menu->addItem(MenuItem::separatorItem());
    add("Second");
    MenuView& view = open();
    const QRect place = view.actionGeometry(view.actions().at(1));
    const QImage image = view.grab(place).toImage();
    EXPECT_GT(
        qGray(image.pixel(image.width() / 2, place.height() / 2)) + qGray(image.pixel(image.width() / 2, (place.height() - 1) / 2)), 40);
}

TEST_F(MenuViewTest, ScrollsALongListRatherThanOutgrowTheScreen) {
    for (int i = 0; i < 1000; ++i)
        add("Item " + std::to_string(i));
    EXPECT_EQ(open().actions().size(), 1000);
    EXPECT_LE(_view->height(), _view->screen()->geometry().height());
}

TEST_F(MenuViewTest, ShowsALargeMenuInParts) {
    const auto delegate = std::make_shared<MenuDelegateFake>();
    _menu->delegate = delegate;
    for (std::size_t i = 0; i < 2 * MenuView::mostItems + 1; ++i)
        add("Article " + std::to_string(i), "show:");
    open();
    ASSERT_EQ(_view->actions().size(), 1001);
    EXPECT_EQ(texts()[999], "Article 999");
    EXPECT_EQ(texts()[1000], "More");
    MenuView* const second = submenu(1000);
    second->popup(QPoint(10, 10));
    ASSERT_EQ(second->actions().size(), 1001);
    EXPECT_EQ(second->actions().first()->text(), QStringLiteral("Article 1000"));
    emit second->hovered(second->actions().last());
    auto* const third = qobject_cast<MenuView*>(second->actions().last()->menu());
    third->popup(QPoint(10, 10));
    ASSERT_EQ(third->actions().size(), 1);
    third->actions().first()->trigger();
    EXPECT_THAT(_handler->log, ElementsAre("show:"));
    EXPECT_THAT(delegate->log, ElementsAre("menuWillOpen"));
    _view->hide();
    EXPECT_THAT(delegate->log, ElementsAre("menuWillOpen", "menuDidClose"));
}

} // namespace brindle::desktop
