#include "foundation/PropertyList.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace brindle {

namespace {

std::string xml(std::string_view body) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist SYSTEM \"PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n" +
           std::string(body) + "\n</plist>\n";
}

PropertyList read(std::string_view bytes) {
    const auto list = PropertyList::read(bytes);
    EXPECT_TRUE(list) << (list ? "" : list.error().message);
    return list.value_or(PropertyList());
}

/// One object alone, written and read.
template <typename T>
T roundTripped(T value) {
    PropertyList list;
    list.root = list.add(std::move(value));
    const PropertyList copy = read(list.binary());
    const T* const result = copy.get<T>(copy.root);
    EXPECT_TRUE(result);
    return result == nullptr ? T() : *result;
}

std::string bigEndian(std::uint64_t number) {
    std::string bytes;
    for (int shift = 56; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(number >> shift & 0xFF));
    return bytes;
}

/// A binary file of these objects' bytes, with one-byte offsets and references; the first is the top.
std::string binaryFile(const std::vector<std::string>& objects) {
    std::string bytes = "bplist00";
    std::string offsets;
    for (const std::string& object : objects) {
        offsets.push_back(static_cast<char>(bytes.size()));
        bytes += object;
    }
    const std::size_t table = bytes.size();
    return bytes + offsets + std::string(6, '\0') + "\x01\x01" + bigEndian(objects.size()) + bigEndian(0) + bigEndian(table);
}

bool isRefused(std::string_view bytes) {
    return !PropertyList::read(bytes).has_value();
}

} // namespace

TEST(PropertyListTest, IntegersOfEveryWidthSurvive) {
    for (const std::int64_t integer : std::initializer_list<std::int64_t>{0, 1, 255, 256, 65535, 65536, 4294967295, 4294967296, -1, -256,
             std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()})
        EXPECT_EQ(roundTripped(integer), integer);
}

TEST(PropertyListTest, TextsSurvive) {
    for (const std::string& text : {std::string(), std::string("plain"), std::string("caf\xC3\xA9"), std::string("\xF0\x9F\x98\x80"),
             std::string(14, 'x'), std::string(15, 'x'), std::string(300, 'x'), std::string("\0a", 2), std::string("\xEF\xBF\xBF")})
        EXPECT_EQ(roundTripped(text), text);
}

TEST(PropertyListTest, RealsDatesDataAndConstantsSurvive) {
    EXPECT_EQ(roundTripped(0.1), 0.1);
    EXPECT_EQ(roundTripped(-std::numeric_limits<double>::infinity()), -std::numeric_limits<double>::infinity());
    const Date date(std::chrono::microseconds(1'136'214'245'123'456));
    EXPECT_EQ(roundTripped(date), date);
    EXPECT_EQ(roundTripped(PropertyList::Data{std::string(1000, '\xFF')}).bytes, std::string(1000, '\xFF'));
    EXPECT_TRUE(roundTripped(true));
    EXPECT_EQ(roundTripped(PropertyList::UID{70'000}).value, 70'000U);
    roundTripped(PropertyList::Null());
}

TEST(PropertyListTest, ContainersSurviveWithTheirOrder) {
    PropertyList list;
    const PropertyList::Index inner = list.add(PropertyList::Array{list.add(std::int64_t(1)), list.add(std::string("x"))});
    list.root = list.add(PropertyList::Dictionary{{list.add(std::string("z")), inner}, {list.add(std::string("a")), inner}});
    const PropertyList copy = read(list.binary());
    const auto* const pairs = copy.get<PropertyList::Dictionary>(copy.root);
    ASSERT_TRUE(pairs);
    ASSERT_EQ(pairs->size(), 2U);
    EXPECT_EQ(*copy.get<std::string>(pairs->at(0).first), "z");
    EXPECT_EQ(pairs->at(0).second, pairs->at(1).second);
    EXPECT_EQ(copy.get<PropertyList::Array>(pairs->at(0).second)->size(), 2U);
}

TEST(PropertyListTest, EqualTextsAndNumbersAreWrittenOnce) {
    PropertyList list;
    PropertyList::Array array;
    for (int time = 0; time < 10; ++time) {
        array.push_back(list.add(std::string("again")));
        array.push_back(list.add(std::int64_t(7)));
        array.push_back(list.add(0.5));
        array.push_back(list.add(true));
    }
    list.root = list.add(std::move(array));
    EXPECT_EQ(read(list.binary()).objects.size(), 5U);
}

TEST(PropertyListTest, TheFirstOfRepeatedKeysCounts) {
    const PropertyList list = read(xml("<dict><key>k</key><integer>1</integer><key>k</key><integer>2</integer></dict>"));
    EXPECT_EQ(*list.get<std::int64_t>(list.value(list.root, "k").value()), 1);
    EXPECT_EQ(list.value(list.root, "none"), std::nullopt);
    EXPECT_EQ(list.value(list.value(list.root, "k").value(), "k"), std::nullopt);
    EXPECT_EQ(list.value(99, "k"), std::nullopt);
}

TEST(PropertyListTest, ManyObjectsNeedWiderReferences) {
    for (const std::size_t count : {254U, 255U, 256U, 70'000U}) {
        PropertyList list;
        PropertyList::Array array;
        for (std::size_t index = 0; index < count; ++index)
            array.push_back(list.add("text " + std::to_string(index)));
        list.root = list.add(array);
        const PropertyList copy = read(list.binary());
        const auto* const elements = copy.get<PropertyList::Array>(copy.root);
        ASSERT_TRUE(elements);
        ASSERT_EQ(elements->size(), count);
        EXPECT_EQ(*copy.get<std::string>(elements->back()), "text " + std::to_string(count - 1));
    }
}

TEST(PropertyListTest, DepthCostsNoStack) {
    PropertyList list;
    PropertyList::Index inner = list.add(PropertyList::Array());
    for (int depth = 0; depth < 100'000; ++depth)
        inner = list.add(PropertyList::Array{inner});
    list.root = inner;
    EXPECT_EQ(read(list.binary()).objects.size(), 100'001U);
    std::string body;
    for (int depth = 0; depth < 100'000; ++depth)
        body += "<array>";
    for (int depth = 0; depth < 100'000; ++depth)
        body += "</array>";
    EXPECT_EQ(read(xml(body)).objects.size(), 100'000U);
}

TEST(PropertyListTest, ReadsOtherWidthsThanItWrites) {
    const PropertyList real = read(binaryFile({std::string("\x22\x3F\x80\x00\x00", 5)}));
    EXPECT_EQ(*real.get<double>(0), 1.0);
    const PropertyList large = read(binaryFile({std::string("\x14", 1) + bigEndian(0) + bigEndian(std::uint64_t(1) << 63)}));
    EXPECT_EQ(*large.get<double>(0), 9223372036854775808.0);
    const PropertyList small = read(binaryFile({std::string("\x14", 1) + bigEndian(~std::uint64_t(0)) + bigEndian(~std::uint64_t(0))}));
    EXPECT_EQ(*small.get<std::int64_t>(0), -1);
    const PropertyList negative = read(binaryFile({"\x14" + bigEndian(~std::uint64_t(0)) + bigEndian(0)}));
    EXPECT_EQ(*negative.get<double>(0), -18446744073709551616.0);
    const PropertyList set = read(binaryFile({"\xC1\x01", "\x09"}));
    EXPECT_EQ(set.get<PropertyList::Array>(0)->size(), 1U);
    const PropertyList lone = read(binaryFile({"\x62\xD8\x3D\x26\x03"}));
    EXPECT_EQ(*lone.get<std::string>(0), "\xEF\xBF\xBD\xE2\x98\x83");
}

TEST(PropertyListTest, RefusesObjectsThatTheFileDoesNotHold) {
    for (const std::string& object :
        {std::string("\x5F\x10\xFF"), std::string("\x5F\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"), std::string("\x62\0a", 3),
            std::string("\xA1\x05"), std::string("\xD1\x01"), std::string("\xD1\x01\x05"), std::string("\x13\x01"), std::string("\x15"),
            std::string("\x33\x01"), std::string("\x33\x7F\xF8\0\0\0\0\0\0", 9), std::string("\x8F"), std::string("\x0F"),
            std::string("\x70"), std::string("\x5F\x09"), std::string("\x20"), std::string("\xEE")})
        EXPECT_TRUE(isRefused(binaryFile({object}))) << testing::PrintToString(object);
}

TEST(PropertyListTest, RefusesATrailerThatLies) {
    const std::string good = binaryFile({"\xA1\x01", "\x09"});
    ASSERT_FALSE(isRefused(good));
    const std::size_t trailer = good.size() - 32;
    for (const std::size_t at : {trailer + 6, trailer + 7}) {
        for (const char size : {'\0', '\x09', '\xFF'}) {
            std::string bad = good;
            bad[at] = size;
            EXPECT_TRUE(isRefused(bad));
        }
    }
    for (const std::size_t at : {trailer + 8, trailer + 15, trailer + 23, trailer + 24, trailer + 31}) {
        std::string bad = good;
        bad[at] = '\x7F';
        EXPECT_TRUE(isRefused(bad)) << at;
    }
}

TEST(PropertyListTest, RefusesObjectsThatShareBytes) {
    // A thousand offsets into one large object would unfold to a thousand copies.
    const std::string text = std::string("\x5F\x11\x03\xE8", 4) + std::string(1000, 'x');
    std::string bytes = "bplist00" + text;
    const std::size_t table = bytes.size();
    bytes += std::string(1000, '\x08') + std::string(6, '\0') + "\x01\x02" + bigEndian(1000) + bigEndian(0) + bigEndian(table);
    EXPECT_TRUE(isRefused(bytes));
}

TEST(PropertyListTest, CirclesAreRead) {
    const PropertyList list = read(binaryFile({std::string("\xA1\0", 2)}));
    EXPECT_EQ(list.get<PropertyList::Array>(0)->front(), 0U);
    EXPECT_EQ(read(list.binary()).objects.size(), 1U);
}

TEST(PropertyListTest, ReadsTheXMLForm) {
    const PropertyList list = read(xml("<dict><key>t</key><string>a &amp; <![CDATA[<b>]]></string><key>i</key><integer> -12 </integer>"
                                       "<key>h</key><integer>0x1F</integer><key>r</key><real>+1.5e3</real><key>y</key><true/>"
                                       "<key>d</key><date>2006-01-02T15:04:05Z</date><key>b</key><data>\n AAEC\n/w== </data>"
                                       "<key>a</key><array><string/><false></false><array/></array></dict>"));
    const auto value = [&list](std::string_view key) { return list.value(list.root, key).value(); };
    EXPECT_EQ(*list.get<std::string>(value("t")), "a & <b>");
    EXPECT_EQ(*list.get<std::int64_t>(value("i")), -12);
    EXPECT_EQ(*list.get<std::int64_t>(value("h")), 31);
    EXPECT_EQ(*list.get<double>(value("r")), 1500);
    EXPECT_TRUE(*list.get<bool>(value("y")));
    EXPECT_EQ(iso8601String(*list.get<Date>(value("d"))), "2006-01-02T15:04:05.000Z");
    EXPECT_EQ(list.get<PropertyList::Data>(value("b"))->bytes, std::string("\0\1\2\xFF", 4));
    EXPECT_EQ(list.get<PropertyList::Array>(value("a"))->size(), 3U);
}

TEST(PropertyListTest, AnUnsignedIntegerBeyondTheRangeIsAReal) {
    const PropertyList list = read(xml("<integer>18446744073709551615</integer>"));
    EXPECT_EQ(*list.get<double>(list.root), 18446744073709551616.0);
}

TEST(PropertyListTest, RefusesXMLThatIsNoPropertyList) {
    for (const std::string_view body : {"", "<dict><key>k</key></dict>", "<dict><string>v</string></dict>",
             "<dict><key>a</key><key>b</key></dict>", "<array><key>k</key></array>", "<key>k</key>", "<integer>1.5</integer>",
             "<integer></integer>", "<real>x</real>", "<real></real>", "<date>today</date>", "<data>!</data>", "<data>AA==A</data>",
             "<what/>", "<string><b/></string>", "<true/><true/>", "<plist><what/></plist>", "<array>"})
        EXPECT_TRUE(isRefused(xml(body))) << body;
    EXPECT_TRUE(isRefused(""));
    EXPECT_TRUE(isRefused("hello"));
    EXPECT_TRUE(isRefused("<rss><channel/></rss>"));
}

TEST(PropertyListTest, GivesTheWholePartOfANumber) {
    PropertyList list;
    EXPECT_EQ(list.integer(list.add(std::int64_t{-5})), -5);
    EXPECT_EQ(list.integer(list.add(true)), 1);
    EXPECT_EQ(list.integer(list.add(45.9)), 45);
    EXPECT_EQ(list.integer(list.add(1e19)), std::nullopt);
    EXPECT_EQ(list.integer(list.add(std::nan(""))), std::nullopt);
    EXPECT_EQ(list.integer(list.add(std::string("5"))), std::nullopt);
    EXPECT_EQ(list.integer(4711), std::nullopt);
}

} // namespace brindle
