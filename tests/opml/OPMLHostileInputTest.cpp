#include "Brindle/library/FeedGroup.hpp"
#include "tests/opml/OPMLFixture.hpp"

#include <cstddef>

namespace brindle {

class OPMLHostileInputTest : public OPMLTest {
protected:
    static std::string repeated(std::string_view text, std::size_t count) {
        std::string all;
        all.reserve(text.size() * count);
        for (std::size_t i = 0; i < count; ++i)
            all += text;
        return all;
    }

    static std::size_t depthOf(const Feeds& feeds) {
        std::size_t depth = 0;
        for (const Feeds* list = &feeds; !list->empty(); ++depth)
            list = &static_cast<const FeedGroup&>(*list->front()).feeds();
        return depth;
    }
};

TEST_F(OPMLHostileInputTest, TakesNoStackForNestedGroups) {
    constexpr std::size_t depth = 200'000;
    const Feeds feeds = read({write("a.opml", opml(repeated("<outline text='G'>", depth) + repeated("</outline>", depth)))});
    EXPECT_TRUE(failures.empty());
    EXPECT_EQ(depthOf(feeds), depth);
}

TEST_F(OPMLHostileInputTest, TakesNoStackForNestedGroupsThatNeverEnd) {
    constexpr std::size_t depth = 200'000;
    const Feeds feeds = read({write("a.opml", "<opml><body>" + repeated("<outline text='G'>", depth))});
    EXPECT_EQ(failures.size(), 1U);
    EXPECT_EQ(depthOf(feeds), depth);
}

TEST_F(OPMLHostileInputTest, RefusesAMillionAttributes) {
    std::string tag = "<outline text='A'";
    for (int i = 0; i < 1'000'000; ++i)
        tag.append(" a").append(std::to_string(i)).append("=''");
    EXPECT_TRUE(read({write("a.opml", opml(tag + "/>"))}).empty());
    EXPECT_EQ(failures.size(), 1U);
}

TEST_F(OPMLHostileInputTest, RefusesEntitiesThatExpandWithoutEnd) {
    std::string document = "<!DOCTYPE opml [<!ENTITY e0 'lol'>";
    for (int i = 1; i < 30; ++i) {
        const std::string inner = "&e" + std::to_string(i - 1) + ";";
        document += "<!ENTITY e" + std::to_string(i) + " '" + repeated(inner, 10) + "'>";
    }
    EXPECT_TRUE(read({write("a.opml", document + "]><opml><body><outline text='&e29;'/></body></opml>")}).empty());
    EXPECT_EQ(failures.size(), 1U);
}

TEST_F(OPMLHostileInputTest, ReadsNoFileThatADocumentNames) {
    const auto secret = write("secret.txt", "secret");
    const Feeds feeds = read({write("a.opml",
        "<!DOCTYPE opml [<!ENTITY e SYSTEM 'file://" + secret.string() + "'>]><opml><body>&e;<outline text='A'/></body></opml>")});
    EXPECT_EQ(outline(feeds).find("secret"), std::string::npos);
}

TEST_F(OPMLHostileInputTest, RefusesBinaryGarbage) {
    std::string bytes;
    std::uint32_t state = 12345;
    for (int i = 0; i < 1'000'000; ++i) {
        state = state * 1'664'525 + 1'013'904'223;
        bytes.push_back(static_cast<char>(state >> 24));
    }
    EXPECT_TRUE(read({write("a.opml", bytes), write("b.opml", std::string(1'000'000, '\0'))}).empty());
    EXPECT_EQ(failures.size(), 2U);
}

} // namespace brindle
