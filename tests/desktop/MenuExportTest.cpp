#include "desktop/system/MenuExport.hpp"

#include "desktop/toolkit/MenuView.hpp"
#include "desktop/toolkit/Text.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"
#include "tests/fakes/MenuDelegateFake.hpp"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace brindle::desktop {

using testing::ElementsAre;

namespace {

class SubmenuSourceFake : public SubmenuSource {
public:
    std::shared_ptr<Menu> makeSubmenu(const MenuItem& item) override {
        const auto menu = std::make_shared<Menu>();
        menu->addItem(std::make_shared<MenuItem>("below " + item.title(), "below:"));
        ++made;
        return menu;
    }

    int made = 0;
};

class MenuExportTest : public testing::Test {
protected:
    MenuExportTest() { _chain->setHandlers({_handler}); }

    std::shared_ptr<MenuItem> add(const std::string& title, std::string_view action = "act:") {
        const auto item = std::make_shared<MenuItem>(title, action);
        _menu->addItem(item);
        return item;
    }
    /// As a panel has read it.
    void make() {
        _export = MenuExport::make(_menu, _chain);
        _export->layout(0, -1);
    }
    bool isTold(const std::function<void()>& change) {
        const QSignalSpy updates(_export.get(), &MenuExport::layoutUpdated);
        change();
        return runEventLoop([&] { return !updates.isEmpty(); });
    }
    DBusMenuLayout child(const DBusMenuLayout& layout, int index) const { return layout.children.at(index).value<DBusMenuLayout>(); }
    std::vector<std::string> labels(int id = 0) {
        std::vector<std::string> result;
        for (const QVariant& each : _export->layout(id, 1).children)
            result.push_back(fromQString(each.value<DBusMenuLayout>().properties.value(QStringLiteral("label")).toString()));
        return result;
    }
    int idAt(int index) { return child(_export->layout(0, 1), index).id; }

    std::shared_ptr<ActionHandlerFake> _handler = std::make_shared<ActionHandlerFake>();
    std::shared_ptr<ResponderChain> _chain = std::make_shared<ResponderChain>();
    std::shared_ptr<MenuDelegateFake> _delegate = std::make_shared<MenuDelegateFake>();
    std::shared_ptr<Menu> _menu = std::make_shared<Menu>();
    std::shared_ptr<MenuExport> _export;
};

} // namespace

TEST_F(MenuExportTest, TellsWhatItemsShow) {
    add("under_score & more");
    _menu->addItem(MenuItem::separatorItem());
    const auto item = add("Marked");
    item->setState(true);
    item->setImage(Image::defaultFeedIcon());
    add("Nobody's", {});
    make();
    const DBusMenuLayout layout = _export->layout(0, -1);
    EXPECT_EQ(child(layout, 0).properties, (QVariantMap{{"label", "under__score & more"}}));
    EXPECT_EQ(child(layout, 1).properties, (QVariantMap{{"type", "separator"}}));
    EXPECT_EQ(child(layout, 2).properties.value("toggle-state"), 1);
    EXPECT_TRUE(child(layout, 2).properties.value("icon-data").toByteArray().startsWith("\x89PNG"));
    EXPECT_EQ(child(layout, 3).properties.value("enabled"), false);
}

TEST_F(MenuExportTest, KeepsItsNumbersThroughRebuilds) {
    add("First");
    add("Feed (3)", {});
    make();
    const int first = idAt(0);
    const int feed = idAt(1);
    EXPECT_NE(first, feed);
    ASSERT_TRUE(isTold([this] {
        _menu->removeAllItems();
        add("New");
        add("First");
        add("Feed (4)", {});
    }));
    EXPECT_THAT(labels(), ElementsAre("New", "First", "Feed (4)"));
    EXPECT_EQ(idAt(1), first);
    EXPECT_EQ(idAt(2), feed);
    EXPECT_FALSE(first == idAt(0) || feed == idAt(0));
}

TEST_F(MenuExportTest, GivesTwinsNumbersOfTheirOwn) {
    add("Twin");
    add("Twin");
    make();
    EXPECT_NE(idAt(0), idAt(1));
}

TEST_F(MenuExportTest, TellsOfARebuildOnce) {
    make();
    const uint revision = _export->revision();
    QSignalSpy updates(_export.get(), &MenuExport::layoutUpdated);
    for (int i = 0; i < 10; ++i)
        add("Item");
    ASSERT_TRUE(runEventLoop([&] { return !updates.isEmpty(); }));
    EXPECT_EQ(updates.size(), 1);
    EXPECT_EQ(_export->revision(), revision + 1);
}

TEST_F(MenuExportTest, MakesNothingBeforeThePanelAsks) {
    const auto source = std::make_shared<SubmenuSourceFake>();
    add("Feed")->setSubmenuSource(source);
    _export = MenuExport::make(_menu, _chain);
    ASSERT_TRUE(isTold([&] { add("Another")->setSubmenuSource(source); }));
    EXPECT_EQ(source->made, 0);
    EXPECT_THAT(labels(), ElementsAre("Feed", "Another"));
    EXPECT_EQ(source->made, 2);
}

TEST_F(MenuExportTest, TellsTheChangedPropertiesOfAnItem) {
    const auto item = add("Pause");
    make();
    QSignalSpy updates(_export.get(), &MenuExport::propertiesUpdated);
    item->setTitle("Resume");
    ASSERT_TRUE(runEventLoop([&] { return !updates.isEmpty(); }));
    const auto told = updates[0][0].value<DBusMenuPropertiesList>();
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0].id, idAt(0));
    EXPECT_EQ(told[0].properties.value("label"), "Resume");
}

TEST_F(MenuExportTest, TellsThePropertiesThatAnItemHasNoMore) {
    const auto item = add("Marked");
    item->setState(true);
    item->setImage(Image::defaultFeedIcon());
    make();
    QSignalSpy updates(_export.get(), &MenuExport::propertiesUpdated);
    item->setState(false);
    ASSERT_TRUE(runEventLoop([&] { return !updates.isEmpty(); }));
    const auto removed = updates[0][1].value<DBusMenuKeysList>();
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0].id, idAt(0));
    EXPECT_EQ(removed[0].keys, QStringList({"toggle-type", "toggle-state"}));
}

TEST_F(MenuExportTest, DrawsTheIconThatAnItemHasNow) {
    const auto item = add("Item");
    item->setImage(Image::defaultFeedIcon());
    make();
    const QVariant former = _export->properties(idAt(0)).value("icon-data");
    EXPECT_EQ(_export->properties(idAt(0)).value("icon-data"), former);
    item->setImage(Image::defaultFeedIcon().slashed());
    EXPECT_NE(_export->properties(idAt(0)).value("icon-data"), former);
}

TEST_F(MenuExportTest, FillsTheSubmenusOfALargeMenuWhenTheyAreToBeShown) {
    const auto source = std::make_shared<SubmenuSourceFake>();
    for (int i = 0; i < 1000; ++i)
        add("Feed " + std::to_string(i))->setSubmenuSource(source);
    make();
    const int last = idAt(999);
    EXPECT_EQ(_export->layout(last, -1).properties.value("children-display"), "submenu");
    EXPECT_TRUE(_export->layout(last, -1).children.isEmpty());
    EXPECT_TRUE(_export->aboutToShow(last));
    EXPECT_THAT(labels(last), ElementsAre("below Feed 999"));
    EXPECT_FALSE(_export->aboutToShow(last));
    EXPECT_EQ(source->made, 1000);
}

TEST_F(MenuExportTest, TellsOnlyTheSubmenusThatFitIntoALargeMenu) {
    for (const int count : {200, 200, 10}) {
        const auto below = std::make_shared<Menu>();
        for (int i = 0; i < count; ++i)
            below->addItem(std::make_shared<MenuItem>("Article", "act:"));
        add("Feed " + std::to_string(_menu->items().size()), {})->setSubmenu(below);
    }
    make();
    const DBusMenuLayout layout = _export->layout(0, -1);
    EXPECT_EQ(child(layout, 0).children.size(), 200);
    EXPECT_EQ(child(layout, 1).children.size(), 0);
    EXPECT_EQ(child(layout, 2).children.size(), 10);
}

TEST_F(MenuExportTest, TellsALargeMenuInParts) {
    const auto below = std::make_shared<Menu>();
    for (std::size_t i = 0; i < 2 * MenuView::mostItems + 1; ++i)
        below->addItem(std::make_shared<MenuItem>("Article " + std::to_string(i), "show:"));
    add("Unread", {})->setSubmenu(below);
    make();
    int id = idAt(0);
    for (const int count : {1001, 1001, 1}) {
        EXPECT_TRUE(_export->aboutToShow(id));
        const DBusMenuLayout part = _export->layout(id, 1);
        ASSERT_EQ(part.children.size(), count);
        id = child(part, count - 1).id;
        EXPECT_EQ(_export->properties(id).value("label"), count == 1 ? "Article 2000" : "More");
        EXPECT_EQ(_export->properties(id).contains("children-display"), count != 1);
    }
    _export->choose(id);
    EXPECT_THAT(_handler->log, ElementsAre("show:"));
}

TEST_F(MenuExportTest, ShowsNoViews) {
    const auto item = add("Article", "showArticle:");
    const auto preview = std::make_shared<Menu>();
    preview->addItem(std::make_shared<MenuItem>());
    const auto delegate = std::make_shared<MenuDelegateFake>();
    preview->delegate = delegate;
    item->setSubmenu(preview);
    make();
    EXPECT_FALSE(_export->properties(idAt(0)).contains("children-display"));
    EXPECT_FALSE(_export->aboutToShow(idAt(0)));
}

TEST_F(MenuExportTest, PerformsTheActionOfAChosenItem) {
    add("Item", "doIt:");
    make();
    _export->choose(idAt(0));
    EXPECT_THAT(_handler->log, ElementsAre("doIt:"));
}

TEST_F(MenuExportTest, PerformsNothingForADisabledItemOrAnUnknownNumber) {
    add("Item", "doIt:");
    make();
    _export->choose(4711);
    _handler->validates = false;
    _export->choose(idAt(0));
    EXPECT_THAT(_handler->log, ElementsAre());
}

TEST_F(MenuExportTest, IsOpenToItsDelegateWhileThePanelShowsIt) {
    _menu->delegate = _delegate;
    const auto item = add("Group");
    item->setSubmenu(std::make_shared<Menu>());
    make();
    _export->aboutToShow(0);
    _export->opened(0);
    _export->opened(idAt(0));
    _export->closed(idAt(0));
    EXPECT_THAT(_delegate->log, ElementsAre("menuWillOpen"));
    _export->closed(0);
    _export->closed(0);
    EXPECT_THAT(_delegate->log, ElementsAre("menuWillOpen", "menuDidClose"));
}

TEST_F(MenuExportTest, IsClosedByAChoiceBeforeItsAction) {
    _menu->delegate = _delegate;
    add("Item", "doIt:");
    make();
    _export->opened(0);
    _handler->onPerform = [this](const Action&) { EXPECT_THAT(_delegate->log, ElementsAre("menuWillOpen", "menuDidClose")); };
    _export->choose(idAt(0));
    EXPECT_THAT(_handler->log, ElementsAre("doIt:"));
}

TEST_F(MenuExportTest, DoesNotStayOpenWhereThePanelTellsNoMoreOfIt) {
    _menu->delegate = _delegate;
    make();
    _export->aboutToShow(0);
    EXPECT_TRUE(runEventLoop([this] { return _delegate->log.size() == 2; }));
    _export->opened(0);
    _export.reset();
    EXPECT_THAT(_delegate->log, ElementsAre("menuWillOpen", "menuDidClose", "menuWillOpen", "menuDidClose"));
}

TEST_F(MenuExportTest, CutsATitleOfAnyLength) {
    add(std::string(1 << 20, 'x'));
    make();
    EXPECT_LT(labels().front().size(), 2000U);
}

TEST_F(MenuExportTest, SurvivesAMenuOfAnyDepth) {
    std::shared_ptr<Menu> menu = _menu;
    for (int i = 0; i < 200; ++i) {
        const auto item = std::make_shared<MenuItem>("Group");
        item->setSubmenu(std::make_shared<Menu>());
        menu->addItem(item);
        menu = item->submenu();
    }
    make();
    DBusMenuLayout layout = _export->layout(0, -1);
    int depth = 0;
    for (; !layout.children.isEmpty(); ++depth)
        layout = child(layout, 0);
    EXPECT_EQ(depth, 16);
}

} // namespace brindle::desktop
