#include "tests/foundation/ArchiveSamples.hpp"
#include "tests/foundation/HandMadeArchive.hpp"

#include <gtest/gtest.h>

namespace brindle {

using testsupport::errorOf;
using testsupport::HandMadeArchive;
using testsupport::Node;
using testsupport::unarchived;

namespace {

constexpr const char* sharesTooMuch = "The archive's objects share more than can be read for each of them";

/// An archive of many nodes below its root, each with a field that `makeValue` made once for all of them.
template <typename MakeValue>
std::string nodesThatShare(const std::string& key, const MakeValue& makeValue) {
    constexpr std::size_t count = 30'000;
    HandMadeArchive archive;
    const PropertyList::Index value = makeValue(archive, count);
    PropertyList::Array nodes;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t node = archive.addNode();
        archive.set(node, key, value);
        nodes.push_back(archive.uid(node));
    }
    const std::uint64_t children = archive.addInstance("NSArray");
    archive.set(children, "NS.objects", archive.list.add(nodes));
    archive.set(1, "children", archive.uid(children));
    return archive.bytes();
}

/// An array of that many references to one node.
PropertyList::Index sharedArray(HandMadeArchive& archive, std::size_t count) {
    return archive.list.add(PropertyList::Array(count, archive.uid(archive.addNode())));
}

} // namespace

TEST(KeyedArchiveTest, RefusesObjectsThatShareALargeArray) {
    const auto instance = [](HandMadeArchive& archive, std::size_t count) {
        const std::uint64_t array = archive.addInstance("NSArray");
        archive.set(array, "NS.objects", sharedArray(archive, count));
        return archive.uid(array);
    };
    EXPECT_EQ(errorOf(nodesThatShare("children", instance)), sharesTooMuch);
    EXPECT_EQ(errorOf(nodesThatShare("table", instance)), sharesTooMuch);
    EXPECT_EQ(errorOf(nodesThatShare("inline", sharedArray)), sharesTooMuch);
}

TEST(KeyedArchiveTest, RefusesObjectsThatShareALargeTextOrLargeData) {
    const auto text = [](HandMadeArchive& archive, std::size_t) { return archive.list.add(std::string(100'000, 'x')); };
    EXPECT_EQ(errorOf(nodesThatShare("name", text)), sharesTooMuch);
    const auto data = [](HandMadeArchive& archive, std::size_t) { return archive.list.add(PropertyList::Data{std::string(100'000, 'x')}); };
    EXPECT_EQ(errorOf(nodesThatShare("blob", data)), sharesTooMuch);
}

TEST(KeyedArchiveTest, RefusesObjectsThatShareALargeDictionary) {
    const auto dictionary = [](HandMadeArchive& archive, std::size_t count) {
        const PropertyList::Index key = archive.list.add(std::string("key"));
        PropertyList::Dictionary fields;
        for (std::size_t i = 0; i < count; ++i)
            fields.emplace_back(key, key);
        return archive.uid(archive.add(std::move(fields)));
    };
    EXPECT_EQ(errorOf(nodesThatShare("name", dictionary)), sharesTooMuch);
}

TEST(KeyedArchiveTest, ReadsObjectsThatShareWhatIsNotLarge) {
    const auto text = [](HandMadeArchive& archive, std::size_t) { return archive.list.add(std::string(300, 'x')); };
    const std::shared_ptr<Node> root = unarchived(nodesThatShare("name", text));
    ASSERT_TRUE(root);
    ASSERT_EQ(root->children.size(), 30'000U);
    EXPECT_EQ(root->children.back()->name, std::string(300, 'x'));
}

} // namespace brindle
