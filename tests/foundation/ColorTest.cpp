#include "foundation/Color.hpp"

#include "foundation/Coding.hpp"
#include "foundation/KeyedArchiver.hpp"

#include <gtest/gtest.h>
#include <memory>

namespace brindle {
namespace {

/// The fields of a colour's archive as another writer makes them.
struct Fields : Coding {
    std::optional<std::int64_t> space;
    std::optional<std::string> rgb;
    std::optional<std::string> white;
    std::string_view className = "NSColor";

    std::vector<std::string_view> archiveClasses() const override { return {className}; }
    void encode(Coder& coder) const override {
        if (space)
            coder.encode("NSColorSpace", *space);
        if (rgb)
            coder.encode("NSRGB", PropertyList::Data{*rgb});
        if (white)
            coder.encode("NSWhite", PropertyList::Data{*white});
    }
};

std::optional<Color> unarchived(std::optional<std::int64_t> space, std::optional<std::string> rgb, std::optional<std::string> white = {}) {
    const auto fields = std::make_shared<Fields>();
    fields->space = space;
    fields->rgb = std::move(rgb);
    fields->white = std::move(white);
    return Color::unarchive(KeyedArchiver::archivedData(fields).value());
}

/// The value under a key of the archived root object.
template <typename T>
T field(const Color& color, std::string_view key) {
    const PropertyList list = PropertyList::read(color.archivedData().value()).value();
    const auto* const objects = list.get<PropertyList::Array>(list.value(list.root, "$objects").value());
    const auto* const root = list.get<PropertyList::UID>(list.value(list.value(list.root, "$top").value(), "root").value());
    const auto* const found = list.get<T>(list.value(objects->at(root->value), key).value());
    return found ? *found : T();
}

TEST(ColorTest, ReadsSixHexadecimalDigits) {
    EXPECT_EQ(Color::make("#ff0000"), (Color{1, 0, 0, 1}));
    EXPECT_EQ(Color::make("#00FF33"), (Color{0, 1, 0.2, 1}));
}

TEST(ColorTest, RefusesAnyOtherText) {
    for (const char* text : {"", "#", "ff0000", "#ff000", "#ff00000", "#gg0000", "#ff 000", "#-10000", "#+1+1+1", "#ff00 0", "red"})
        EXPECT_EQ(Color::make(text), std::nullopt) << text;
}

TEST(ColorTest, WritesEachStepAsItWasRead) {
    for (const char* text : {"#000000", "#ffffff", "#8e8e93", "#010203", "#7f80fe"})
        EXPECT_EQ(Color::make(text)->hexString(), text);
}

TEST(ColorTest, WritesTheNearestStep) {
    EXPECT_EQ((Color{0.4999, 2, -1, 0.5}).hexString(), "#7fff00");
}

TEST(ColorTest, SystemGrayAndBlackAreTheirSteps) {
    EXPECT_EQ(Color::systemGray.hexString(), "#8e8e93");
    EXPECT_EQ(Color::black, (Color{0, 0, 0, 1}));
}

TEST(ColorTest, IsArchivedInTheFormOfCalibratedColours) {
    const Color color{1, 0.5, 0, 1};
    EXPECT_EQ(field<std::int64_t>(color, "NSColorSpace"), 1);
    EXPECT_EQ(field<PropertyList::Data>(color, "NSRGB").bytes, std::string("1 0.5 0\0", 8));
    EXPECT_EQ(field<PropertyList::Data>(Color{0, 0, 0, 0.25}, "NSRGB").bytes, std::string("0 0 0 0.25\0", 11));
    EXPECT_NE(color.archivedData()->find("NSColor"), std::string::npos);
}

TEST(ColorTest, ComesBackFromItsArchiveExactly) {
    for (const Color& color : {Color::systemGray, Color::black, Color{1.0 / 3, 1e-9, 0.7, 0.1}})
        EXPECT_EQ(Color::unarchive(color.archivedData().value()), color);
}

TEST(ColorTest, ReadsColoursOfTheDeviceAndGrayOnes) {
    EXPECT_EQ(unarchived(1, "0.5 1 0"), (Color{0.5, 1, 0, 1}));
    EXPECT_EQ(unarchived(2, std::string("0.5 1 0 0.5\0", 12)), (Color{0.5, 1, 0, 0.5}));
    EXPECT_EQ(unarchived(3, {}, std::string("0.5\0", 4)), (Color{0.5, 0.5, 0.5, 1}));
    EXPECT_EQ(unarchived(4, {}, "0.25 0.5"), (Color{0.25, 0.25, 0.25, 0.5}));
}

TEST(ColorTest, TakesPartsOutsideTheirRangeForTheNearerEnd) {
    EXPECT_EQ(unarchived(1, "-0.5 1.5 0"), (Color{0, 1, 0, 1}));
}

TEST(ColorTest, WhatIsNoColourGivesNone) {
    for (const char* text : {"", "1", "1 0", "1 0 0 1 1", "1 0 x", "1 0 0x", "nan 0 0", "inf 0 0", "1,0,0"})
        EXPECT_EQ(unarchived(1, text), std::nullopt) << text;
    EXPECT_EQ(unarchived(3, {}, "1 1 1"), std::nullopt);
    EXPECT_EQ(unarchived(1, {}), std::nullopt);
    EXPECT_EQ(unarchived(1, {}, "1"), std::nullopt);
    EXPECT_EQ(unarchived({}, "1 0 0"), std::nullopt);
    EXPECT_EQ(unarchived(6, "1 0 0"), std::nullopt);
}

TEST(ColorTest, DataThatDoesNotUnarchiveGivesNoColour) {
    EXPECT_EQ(Color::unarchive(""), std::nullopt);
    EXPECT_EQ(Color::unarchive("#ff0000"), std::nullopt);
    const auto fields = std::make_shared<Fields>();
    fields->className = "NSTask";
    EXPECT_EQ(Color::unarchive(KeyedArchiver::archivedData(fields).value()), std::nullopt);
}

} // namespace
} // namespace brindle
