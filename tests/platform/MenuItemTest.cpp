#include "platform/Menu.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

/// Makes an empty menu, and counts.
class CountingSource : public SubmenuSource {
public:
    std::shared_ptr<Menu> makeSubmenu(const MenuItem&) override {
        ++count;
        return std::make_shared<Menu>();
    }

    int count = 0;
};

TEST(MenuItemTest, BeginsEnabledAndUnmarked) {
    MenuItem item("Title", "do:");
    EXPECT_EQ(item.title(), "Title");
    EXPECT_EQ(item.action(), "do:");
    EXPECT_TRUE(item.isEnabled());
    EXPECT_FALSE(item.state());
    EXPECT_FALSE(item.isSeparator());
    EXPECT_FALSE(item.hasTarget());
    EXPECT_FALSE(item.hasSubmenu());
    EXPECT_EQ(item.submenu(), nullptr);
    EXPECT_EQ(item.menu(), nullptr);
}

TEST(MenuItemTest, MakesItsSubmenuWhenSomebodyLooks) {
    const auto source = std::make_shared<CountingSource>();
    MenuItem item;
    item.setSubmenuSource(source);
    EXPECT_TRUE(item.hasSubmenu());
    EXPECT_EQ(source->count, 0);
    const auto submenu = item.submenu();
    EXPECT_NE(submenu, nullptr);
    EXPECT_EQ(item.submenu(), submenu);
    EXPECT_EQ(source->count, 1);
}

TEST(MenuItemTest, HasNoSubmenuWhoseSourceIsGone) {
    MenuItem item;
    item.setSubmenuSource(std::make_shared<CountingSource>());
    EXPECT_FALSE(item.hasSubmenu());
    EXPECT_EQ(item.submenu(), nullptr);
}

TEST(MenuItemTest, ReplacesASourceByASubmenu) {
    const auto source = std::make_shared<CountingSource>();
    const auto submenu = std::make_shared<Menu>();
    MenuItem item;
    item.setSubmenuSource(source);
    item.setSubmenu(submenu);
    EXPECT_EQ(item.submenu(), submenu);
    item.setSubmenu(nullptr);
    EXPECT_FALSE(item.hasSubmenu());
}

} // namespace
} // namespace brindle
