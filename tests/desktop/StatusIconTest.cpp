#include "desktop/system/StatusIcon.hpp"

#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

int differentPixels(const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y);
    }
    return count;
}

} // namespace

TEST(StatusIconTest, IsAsLargeAsAskedFor) {
    for (const int side : statusicon::sides)
        EXPECT_EQ(statusicon::drawing(Image::named("menu_feed"), "12", side).size(), QSize(side, side));
}

TEST(StatusIconTest, HasTheNumberInItsLowerHalf) {
    const Image image = Image::named("menu_feed_alt");
    const QImage plain = statusicon::drawing(image, "", 32);
    const QImage counted = statusicon::drawing(image, "7", 32);
    EXPECT_GT(differentPixels(plain.copy(0, 16, 32, 16), counted.copy(0, 16, 32, 16)), 50);
    EXPECT_EQ(differentPixels(plain.copy(0, 0, 32, 14), counted.copy(0, 0, 32, 14)), 0);
}

TEST(StatusIconTest, TellsNumbersApart) {
    const Image image = Image::named("menu_feed_alt");
    EXPECT_GT(differentPixels(statusicon::drawing(image, "3", 16), statusicon::drawing(image, "4", 16)), 3);
}

TEST(StatusIconTest, IsCrossedWhilePaused) {
    const QImage paused = statusicon::drawing(Image::named("menu_feed").slashed(), "", 32);
    EXPECT_EQ(paused.pixelColor(16, 15), QColor(255, 0, 0));
}

TEST(StatusIconTest, ShortensLargeNumbers) {
    EXPECT_EQ(statusicon::shortNumber("999"), "999");
    EXPECT_EQ(statusicon::shortNumber("1000"), "1k");
    EXPECT_EQ(statusicon::shortNumber("35213"), "35k");
    EXPECT_EQ(statusicon::shortNumber("123456"), "99k");
}

} // namespace brindle::desktop
