#include "platform/Menu.hpp"
#include "platform/ResponderChain.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"
#include "tests/fakes/MenuDelegateFake.hpp"
#include "tests/fakes/MenuObserverFake.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Appends one item, and counts.
class OneItemSource : public MenuItemSource {
public:
    void appendItems(Menu& menu) override {
        ++count;
        menu.addItem(item);
    }

    int count = 0;
    std::shared_ptr<MenuItem> item = std::make_shared<MenuItem>();
};

/// Adds the same observer at every change of the items.
class AddingObserver : public MenuObserver {
public:
    void menuDidChange(Menu& menu) override { menu.addObserver(added); }
    void menuItemDidChange(Menu&, MenuItem&) override {}

    std::shared_ptr<MenuObserverFake> added = std::make_shared<MenuObserverFake>();
};

/// Appends nothing, but lets an observer watch the menu.
class ObservedSource : public MenuItemSource {
public:
    explicit ObservedSource(std::weak_ptr<MenuObserver> menuObserver) : observer(std::move(menuObserver)) {}
    void appendItems(Menu& menu) override { menu.addObserver(observer); }

    std::weak_ptr<MenuObserver> observer;
};

TEST(MenuTest, HoldsItsItemsInOrder) {
    Menu menu;
    const auto first = std::make_shared<MenuItem>("First");
    const auto second = MenuItem::separatorItem();
    menu.addItem(first);
    menu.addItem(second);
    EXPECT_THAT(menu.items(), ElementsAre(first, second));
    EXPECT_EQ(first->menu(), &menu);
    EXPECT_TRUE(second->isSeparator());
}

TEST(MenuTest, LetsGoOfItsItems) {
    Menu menu;
    const auto item = std::make_shared<MenuItem>();
    menu.addItem(item);
    menu.removeAllItems();
    EXPECT_THAT(menu.items(), IsEmpty());
    EXPECT_EQ(item->menu(), nullptr);
}

TEST(MenuTest, HandsItsItemsToAnother) {
    Menu menu;
    Menu other;
    const auto first = std::make_shared<MenuItem>();
    const auto second = std::make_shared<MenuItem>();
    menu.addItem(first);
    other.addItem(second);
    menu.moveItems(other);
    EXPECT_THAT(menu.items(), ElementsAre(first, second));
    EXPECT_THAT(other.items(), IsEmpty());
    EXPECT_EQ(second->menu(), &menu);
}

TEST(MenuTest, MakesItemsWhenSomebodyLooks) {
    const auto source = std::make_shared<OneItemSource>();
    Menu menu;
    const auto first = std::make_shared<MenuItem>();
    menu.addItem(first);
    menu.setItemSource(source);
    EXPECT_EQ(source->count, 0);
    EXPECT_THAT(menu.items(), ElementsAre(first, source->item));
    EXPECT_THAT(menu.items(), SizeIs(2));
    EXPECT_EQ(source->count, 1);
}

TEST(MenuTest, TellsOfItemsToBeMadeOnceAndNotWhenTheyAre) {
    const auto observer = std::make_shared<MenuObserverFake>();
    const auto source = std::make_shared<OneItemSource>();
    Menu menu;
    menu.addObserver(observer);
    menu.setItemSource(source);
    EXPECT_THAT(observer->log, ElementsAre("menu 1")) << "the observer looked";
    source->item->setTitle("Title");
    EXPECT_THAT(observer->log, ElementsAre("menu 1", "item Title"));
}

TEST(MenuTest, HandsItemsThatAreStillToBeMadeToAnother) {
    const auto source = std::make_shared<OneItemSource>();
    Menu menu;
    Menu other;
    other.setItemSource(source);
    menu.moveItems(other);
    EXPECT_EQ(source->count, 0);
    EXPECT_THAT(other.items(), IsEmpty());
    EXPECT_THAT(menu.items(), ElementsAre(source->item));
}

TEST(MenuTest, PutsItemsThatAreStillToBeMadeBehindAllThatItIsHanded) {
    const auto observer = std::make_shared<MenuObserverFake>();
    const auto source = std::make_shared<OneItemSource>();
    const auto first = std::make_shared<MenuItem>();
    const auto second = std::make_shared<MenuItem>();
    Menu menu;
    Menu other;
    menu.addObserver(observer);
    other.addItem(first);
    other.addItem(second);
    other.setItemSource(source);
    menu.moveItems(other);
    EXPECT_THAT(menu.items(), ElementsAre(first, second, source->item));
    EXPECT_THAT(observer->log, ElementsAre("menu 1", "menu 2", "menu 3")) << "the observer looks each time";
}

TEST(MenuTest, MakesNoItemsThatWereRemovedOrWhoseSourceIsGone) {
    auto source = std::make_shared<OneItemSource>();
    Menu menu;
    menu.setItemSource(source);
    menu.removeAllItems();
    EXPECT_THAT(menu.items(), IsEmpty());
    menu.setItemSource(source);
    source.reset();
    EXPECT_THAT(menu.items(), IsEmpty());
}

TEST(MenuTest, LeavesItsItemsBehindWhenItEnds) {
    const auto item = std::make_shared<MenuItem>();
    {
        Menu menu;
        menu.addItem(item);
    }
    EXPECT_EQ(item->menu(), nullptr);
}

TEST(MenuDeathTest, TakesNoItemOfAnotherMenu) {
    Menu menu;
    const auto item = std::make_shared<MenuItem>();
    menu.addItem(item);
    EXPECT_DEATH(menu.addItem(item), "Fatal error: A menu item is in another menu already");
}

TEST(MenuTest, TellsItsObserversOfEveryChange) {
    const auto observer = std::make_shared<MenuObserverFake>();
    Menu menu;
    menu.addObserver(observer);
    const auto item = std::make_shared<MenuItem>("Item");
    menu.addItem(item);
    EXPECT_THAT(observer->log, ElementsAre("menu 1"));
    observer->log.clear();
    item->setTitle("Title");
    EXPECT_THAT(observer->log, ElementsAre("item Title"));
    item->setStyle(std::make_shared<const TextStyle>());
    item->setAction("do:");
    item->setTarget({});
    item->setEnabled(false);
    item->setState(true);
    item->setImage(Image::named("image"));
    item->setRepresentedObject(item);
    item->setRepresentedObject(nullptr);
    item->setSubmenu(std::make_shared<Menu>());
    item->setSubmenuSource({});
    item->setView(nullptr);
    EXPECT_THAT(observer->log, SizeIs(12));
    observer->log.clear();
    menu.removeAllItems();
    item->setTitle("Outside");
    EXPECT_THAT(observer->log, ElementsAre("menu 0"));
}

TEST(MenuTest, LetsItsObserversLookWhileTheyAreTold) {
    const auto first = std::make_shared<MenuObserverFake>();
    const auto second = std::make_shared<MenuObserverFake>();
    const auto source = std::make_shared<OneItemSource>();
    Menu menu;
    menu.addObserver(first);
    menu.addObserver(second);
    menu.setItemSource(source);
    EXPECT_THAT(first->log, ElementsAre("menu 1"));
    EXPECT_THAT(second->log, ElementsAre("menu 1"));
    EXPECT_EQ(source->count, 1);
}

TEST(MenuTest, LetsItsObserversAddOthers) {
    const auto observer = std::make_shared<AddingObserver>();
    Menu menu;
    menu.addObserver(observer);
    const auto item = std::make_shared<MenuItem>("Item");
    menu.addItem(item);
    EXPECT_THAT(observer->added->log, IsEmpty());
    item->setTitle("Title");
    EXPECT_THAT(observer->added->log, ElementsAre("item Title"));
}

TEST(MenuTest, KeepsAnObserverThatIsAddedWhileItemsAreMade) {
    const auto observer = std::make_shared<MenuObserverFake>();
    const auto source = std::make_shared<ObservedSource>(observer);
    Menu menu;
    menu.setItemSource(source);
    EXPECT_THAT(menu.items(), IsEmpty());
    menu.addItem(std::make_shared<MenuItem>());
    EXPECT_THAT(observer->log, ElementsAre("menu 1"));
}

TEST(MenuTest, TellsNobodyOfAStateThatStays) {
    const auto observer = std::make_shared<MenuObserverFake>();
    Menu menu;
    const auto item = std::make_shared<MenuItem>();
    menu.addItem(item);
    menu.addObserver(observer);
    item->setEnabled(true);
    item->setState(false);
    EXPECT_THAT(observer->log, IsEmpty());
}

TEST(MenuTest, TellsItsDelegateWhenItOpensAndCloses) {
    const auto delegate = std::make_shared<MenuDelegateFake>();
    Menu menu;
    menu.delegate = delegate;
    menu.willOpen({});
    menu.didClose();
    EXPECT_THAT(delegate->log, ElementsAre("menuWillOpen", "menuDidClose"));
}

TEST(MenuTest, ValidatesItsItemsWhenItOpens) {
    const auto handler = std::make_shared<ActionHandlerFake>();
    handler->validates = false;
    Menu menu;
    for (const char* action : {"do:", ""})
        menu.addItem(std::make_shared<MenuItem>("", action));
    menu.addItem(MenuItem::separatorItem());
    menu.willOpen(ResponderChain({handler}));
    EXPECT_FALSE(menu.items()[0]->isEnabled());
    EXPECT_FALSE(menu.items()[1]->isEnabled());
    EXPECT_TRUE(menu.items()[2]->isEnabled());
}

TEST(MenuTest, LeavesItsItemsAsTheyAreWithoutAutomaticEnabling) {
    Menu menu;
    menu.autoenablesItems = false;
    menu.addItem(std::make_shared<MenuItem>());
    menu.willOpen({});
    EXPECT_TRUE(menu.items()[0]->isEnabled());
}

TEST(MenuTest, EndsWithMenusNestedDeeperThanAnyStack) {
    auto menu = std::make_shared<Menu>();
    for (int i = 0; i < 200'000; ++i) {
        const auto item = std::make_shared<MenuItem>();
        item->setSubmenu(std::move(menu));
        menu = std::make_shared<Menu>();
        menu->addItem(item);
    }
    std::weak_ptr<MenuItem> last = menu->items()[0];
    menu.reset();
    EXPECT_TRUE(last.expired());
}

TEST(MenuTest, LeavesASubmenuAloneThatOthersHold) {
    const auto submenu = std::make_shared<Menu>();
    submenu->addItem(std::make_shared<MenuItem>());
    {
        Menu menu;
        menu.addItem(std::make_shared<MenuItem>());
        menu.items()[0]->setSubmenu(submenu);
    }
    EXPECT_THAT(submenu->items(), SizeIs(1));
}

} // namespace
} // namespace brindle
