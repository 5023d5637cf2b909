#include "platform/Image.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

TEST(ImageTest, IsEqualToWhatShowsTheSame) {
    EXPECT_EQ(Image::named("a"), Image::named("a"));
    EXPECT_FALSE(Image::named("a") == Image::named("b"));
    EXPECT_FALSE(Image::named("a") == Image::withData("a"));
    EXPECT_EQ(Image::withData("bytes"), Image::withData("bytes"));
    EXPECT_EQ(Image::defaultFeedIcon(), Image::defaultFeedIcon());
}

TEST(ImageTest, KnowsItsKindAndWhatItIsMadeOf) {
    EXPECT_EQ(Image::named("a").kind(), Image::Kind::named);
    EXPECT_EQ(Image::named("a").name(), "a");
    EXPECT_EQ(Image::withData("bytes").data(), "bytes");
    EXPECT_EQ(Image::defaultFeedIcon().kind(), Image::Kind::defaultFeedIcon);
}

TEST(ImageTest, IsAnotherImageAtAnotherSize) {
    const Image image = Image::named("a");
    const Image small = image.resized({16, 16});
    EXPECT_EQ(image.size(), std::nullopt);
    EXPECT_EQ(small.size(), (Image::Size{16, 16}));
    EXPECT_FALSE(image == small);
}

TEST(ImageTest, KeepsItsSizeWhenItIsCrossedOut) {
    const Image slashed = Image::named("a").resized({16, 16}).slashed();
    EXPECT_TRUE(slashed.isSlashed());
    EXPECT_EQ(slashed.size(), (Image::Size{16, 16}));
    EXPECT_TRUE(slashed.resized({8, 8}).isSlashed());
    EXPECT_FALSE(Image::named("a").isSlashed());
}

} // namespace
} // namespace brindle
