#include "desktop/toolkit/Images.hpp"

#include <QBuffer>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

std::string png(int side, const QColor& color) {
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

/// An icon file with one picture, of which it says that it is of 16 by 16.
std::string ico(const std::string& picture) {
    const auto little = [](std::size_t value, int bytes) {
        std::string text;
        for (int i = 0; i < bytes; ++i)
            text += static_cast<char>(value >> (8 * i) & 0xff);
        return text;
    };
    const std::string head = little(0, 2) + little(1, 2) + little(1, 2);
    const std::string entry =
        little(16, 1) + little(16, 1) + little(0, 2) + little(1, 2) + little(32, 2) + little(picture.size(), 4) + little(6 + 16, 4);
    return head + entry + picture;
}

bool isBlank(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0)
                return false;
        }
    }
    return true;
}

QImage drawn(const Image& image, const QColor& color = Qt::black) {
    return images::drawing(image, QSize(32, 32), 2, color);
}

} // namespace

TEST(ImagesTest, DrawEveryNamedImageOfTheProgram) {
    for (const char* const name :
        {"menu_feed", "menu_feed_alt", "menu_legacy", "menu_legacy_alt", "menu_feed_alternate", "menu_feed_alternate_alt", "feed_audeo",
            "feed_video", "NSImageNameFolder", "NSImageNameFolderSmart", "NSImageNameStatusUnavailable", "NSImageNameCaution", "brindle"})
        EXPECT_FALSE(isBlank(drawn(Image::named(name)))) << name;
    EXPECT_FALSE(isBlank(drawn(Image::defaultFeedIcon())));
}

TEST(ImagesTest, DrawDrawingsThatTakeLittleWork) {
    const std::string head = R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="8" height="8">)";
    const std::string shape = R"(<path id="a" style="stroke-dasharray:none" d="M0 0H8V8H0z"/>)";
    const std::string icon = "<?xml version=\"1.0\"?>" + head + shape;
    EXPECT_TRUE(images::decoded(icon + "</svg>", {8, 8}));
    EXPECT_FALSE(images::decoded(icon + R"(<use xlink:href="#a"/></svg>)", {8, 8}));
    EXPECT_FALSE(images::decoded(icon + R"(<path stroke="red" stroke-dasharray="0.001" d="M0 0H8"/></svg>)", {8, 8}));
    EXPECT_FALSE(images::decoded(icon + R"(<path style="stroke-dash&#97;rray:0.001" d="M0 0H8"/></svg>)", {8, 8}));
    EXPECT_FALSE(images::decoded(icon + "<!--" + std::string(32 * 1024, ' ') + "--></svg>", {8, 8}));
    // Packed, a drawing may be of any size.
    const QByteArray packed = QByteArray::fromBase64(
        "H4sIAAAAAAACA7MpLktXqMjNySu2VcooKSmw0tcvLy/XKzfWyy9K1zcyMDDQB6pQUijPTCnJsFWyUFLISM1MzygBMe1silKTS7BK6dvZgPTZAQBAL8o1XwAAAA==");
    EXPECT_FALSE(images::decoded(packed.toStdString(), {8, 8}));
}

TEST(ImagesTest, DrawNothingForAnUnknownName) {
    EXPECT_TRUE(isBlank(drawn(Image::named("no such image"))));
    EXPECT_TRUE(isBlank(drawn(Image::named("../menu_feed"))));
}

TEST(ImagesTest, DrawOneColouredImagesInTheLettersColour) {
    const QImage white = drawn(Image::named("menu_feed"), Qt::white);
    const QImage black = drawn(Image::named("menu_feed"), Qt::black);
    const QPoint dot(8, 24);
    EXPECT_EQ(white.pixelColor(dot), QColor(Qt::white));
    EXPECT_EQ(black.pixelColor(dot), QColor(Qt::black));
}

TEST(ImagesTest, DrawBytesAsLargeAsAskedFor) {
    const QImage image = drawn(Image::withData(png(7, Qt::blue)));
    EXPECT_EQ(image.size(), QSize(32, 32));
    EXPECT_EQ(image.pixelColor(16, 16), QColor(Qt::blue));
}

TEST(ImagesTest, DrawTheDefaultIconOfFeedsForBytesThatAreNoImage) {
    EXPECT_EQ(drawn(Image::withData("no image")), drawn(Image::defaultFeedIcon()));
    EXPECT_EQ(drawn(Image::withData("")), drawn(Image::defaultFeedIcon()));
    EXPECT_FALSE(images::decoded("GIF89a", QSize(16, 16)));
}

TEST(ImagesTest, RefuseASmallFileOfManyPixels) {
    EXPECT_TRUE(images::decoded(png(2048, Qt::blue), QSize(16, 16)));
    EXPECT_FALSE(images::decoded(png(2049, Qt::blue), QSize(16, 16)));
}

TEST(ImagesTest, RefuseALargePictureInAnIconFile) {
    EXPECT_TRUE(images::decoded(ico(png(16, Qt::blue)), QSize(16, 16)));
    EXPECT_FALSE(images::decoded(ico(png(2049, Qt::blue)), QSize(16, 16)));
    EXPECT_FALSE(images::decoded(ico(png(12000, Qt::blue)), QSize(16, 16)));
}

TEST(ImagesTest, DrawASmallDrawingOfAnySize) {
    const std::string drawing =
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="9000" height="9000"><rect width="9000" height="9000" fill="blue"/></svg>)";
    EXPECT_EQ(drawn(Image::withData(drawing)).pixelColor(16, 16), QColor(Qt::blue));
}

TEST(ImagesTest, DrawARedSlashFromTheLowerLeftToTheUpperRight) {
    const QImage image = drawn(Image::named("no such image").slashed());
    EXPECT_EQ(image.pixelColor(16, 15), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(1, 30), QColor(255, 0, 0));
    EXPECT_EQ(qAlpha(image.pixel(1, 1)), 0);
}

TEST(ImagesTest, HaveAPixmapOfTheImagesOwnSize) {
    const QPixmap own = images::pixmap(Image::defaultFeedIcon().resized({16, 16}), {48, 48}, 2);
    EXPECT_EQ(own.size(), QSize(32, 32));
    EXPECT_EQ(images::pixmap(Image::defaultFeedIcon(), {48, 48}, 1).size(), QSize(48, 48));
}

} // namespace brindle::desktop
