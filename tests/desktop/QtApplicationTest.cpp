#include "desktop/system/QtApplication.hpp"

#include <QWidget>
#include <gtest/gtest.h>

namespace brindle::desktop {

TEST(QtApplicationTest, HasAVisibleWindowWhileOneIsShown) {
    QWidget window;
    EXPECT_FALSE(QtApplication::hasVisibleWindow());
    window.show();
    EXPECT_TRUE(QtApplication::hasVisibleWindow());
    window.hide();
    EXPECT_FALSE(QtApplication::hasVisibleWindow());
}

TEST(QtApplicationTest, TakesNoIconOfATrayForAWindow) {
    QWidget icon(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    icon.show();
    EXPECT_FALSE(QtApplication::hasVisibleWindow());
}

} // namespace brindle::desktop
