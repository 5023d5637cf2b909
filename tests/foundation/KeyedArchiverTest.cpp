#include "foundation/KeyedArchiver.hpp"

#include "tests/foundation/ArchiveSamples.hpp"

#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <unistd.h>

namespace brindle {

using testsupport::archived;
using testsupport::Node;
using testsupport::unarchived;

namespace {

/// The value under a text key, through a reference into "$objects" if it is one.
PropertyList::Index field(const PropertyList& list, PropertyList::Index dictionary, std::string_view key) {
    const PropertyList::Index value = list.value(dictionary, key).value();
    const auto* const uid = list.get<PropertyList::UID>(value);
    if (uid == nullptr)
        return value;
    const auto* const objects = list.get<PropertyList::Array>(list.value(list.root, "$objects").value());
    return objects->at(static_cast<std::size_t>(uid->value));
}

} // namespace

TEST(KeyedArchiverTest, WritesTheFormOfTheArchive) {
    const auto root = std::make_shared<Node>("n", 5);
    const PropertyList list = PropertyList::read(archived(root)).value();
    EXPECT_EQ(*list.get<std::int64_t>(list.value(list.root, "$version").value()), 100000);
    EXPECT_EQ(*list.get<std::string>(list.value(list.root, "$archiver").value()), "NSKeyedArchiver");
    const auto* const objects = list.get<PropertyList::Array>(list.value(list.root, "$objects").value());
    EXPECT_EQ(*list.get<std::string>(objects->front()), "$null");
    const PropertyList::Index node = field(list, list.value(list.root, "$top").value(), "root");
    EXPECT_EQ(*list.get<std::string>(field(list, node, "name")), "n");
    EXPECT_TRUE(list.get<PropertyList::UID>(list.value(node, "name").value()));
    EXPECT_EQ(*list.get<std::int64_t>(list.value(node, "number").value()), 5);
    EXPECT_EQ(list.get<PropertyList::UID>(list.value(node, "friend").value())->value, 0U);
    EXPECT_EQ(*list.get<std::string>(field(list, field(list, node, "$class"), "$classname")), "Node");
    EXPECT_EQ(*list.get<std::string>(field(list, field(list, field(list, node, "children"), "$class"), "$classname")), "NSArray");
}

TEST(KeyedArchiverTest, AnotherReaderReadsIt) {
    const auto root = std::make_shared<Node>("r\xC3\xB6t", -3);
    root->children = {std::make_shared<Node>("", 1), nullptr, std::make_shared<Node>("\xF0\x9F\x98\x80", 5'000'000'000)};
    root->friendNode = root->children[2];
    root->table = {{{"url", std::string("http://a/")}, {"length", std::int64_t(70'000)}}, {}};
    const std::string path = testing::TempDir() + "brindle-archive-" + std::to_string(getpid());
    std::ofstream(path, std::ios::binary) << archived(root);
    const std::string output = testsupport::runArchiveScript("read '" + path + "'");
    unlink(path.c_str());
    const auto leaf = [](const std::string& name, std::int64_t number) {
        return nlohmann::json{{"classes", {"Node", "Base", "NSObject"}}, {"name", name}, {"number", number},
            {"children", nlohmann::json::array()}, {"friend", nullptr}};
    };
    nlohmann::json expected = leaf("r\xC3\xB6t", -3);
    expected["friend"] = leaf("\xF0\x9F\x98\x80", 5'000'000'000);
    expected["children"] = {leaf("", 1), nullptr, expected["friend"]};
    expected["table"] = {{{"url", "http://a/"}, {"length", 70'000}}, nlohmann::json::object()};
    EXPECT_EQ(nlohmann::json::parse(output, nullptr, false), expected);
}

TEST(KeyedArchiverTest, WhatIsWrittenIsReadBack) {
    const auto root = std::make_shared<Node>("root", 1);
    root->children = {std::make_shared<Node>("a", -1), std::make_shared<Node>("", std::numeric_limits<std::int64_t>::min())};
    root->table = {{{"k", std::string("v")}, {"n", std::int64_t(9)}}};
    const std::shared_ptr<Node> copy = unarchived(archived(root));
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->name, "root");
    ASSERT_EQ(copy->children.size(), 2U);
    EXPECT_EQ(copy->children[0]->number, -1);
    EXPECT_EQ(copy->children[1]->name, "");
    EXPECT_EQ(copy->children[1]->number, std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(copy->table, root->table);
    EXPECT_EQ(copy->friendNode, nullptr);
}

TEST(KeyedArchiverTest, AnObjectReachedTwiceIsWrittenOnce) {
    const auto root = std::make_shared<Node>("root");
    const auto shared = std::make_shared<Node>("shared");
    root->children = {shared, shared};
    root->friendNode = shared;
    const std::shared_ptr<Node> copy = unarchived(archived(root));
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->children[0], copy->children[1]);
    EXPECT_EQ(copy->children[0], copy->friendNode);
}

TEST(KeyedArchiverTest, EqualGraphsGiveEqualBytes) {
    const auto make = [] {
        auto root = std::make_shared<Node>("root");
        root->children = {std::make_shared<Node>("a"), std::make_shared<Node>("b")};
        return archived(root);
    };
    EXPECT_EQ(make(), make());
}

TEST(KeyedArchiverTest, DepthCostsNoStack) {
    auto root = std::make_shared<Node>("leaf");
    for (std::int64_t depth = 0; depth < 100'000; ++depth) {
        auto parent = std::make_shared<Node>("", depth);
        parent->children.push_back(std::move(root));
        root = std::move(parent);
    }
    std::shared_ptr<Node> copy = unarchived(archived(root));
    ASSERT_TRUE(copy);
    std::int64_t depth = 0;
    for (; !copy->children.empty(); ++depth)
        copy = std::shared_ptr<Node>(copy->children[0]);
    EXPECT_EQ(depth, 100'000);
    EXPECT_EQ(copy->name, "leaf");
}

TEST(KeyedArchiverTest, AnArrayMayBeTheRoot) {
    const auto first = std::make_shared<Node>("a", 1);
    const std::vector<std::shared_ptr<const Coding>> root = {first, std::make_shared<Node>("b", 2), first};
    const std::string bytes = KeyedArchiver::archivedData(root).value();
    const auto copy = testsupport::nodeUnarchiver().unarchiveArray(bytes).value().value();
    ASSERT_EQ(copy.size(), 3U);
    EXPECT_EQ(std::dynamic_pointer_cast<Node>(copy[1])->name, "b");
    EXPECT_EQ(copy[0], copy[2]);
    const PropertyList list = PropertyList::read(bytes).value();
    const PropertyList::Index array = field(list, list.value(list.root, "$top").value(), "root");
    EXPECT_EQ(*list.get<std::string>(field(list, field(list, array, "$class"), "$classname")), "NSArray");
}

TEST(KeyedArchiverTest, AnotherReaderReadsAnArrayForRoot) {
    const std::vector<std::shared_ptr<const Coding>> root = {std::make_shared<Node>("a", 1), std::make_shared<Node>("b", 2)};
    const std::string path = testing::TempDir() + "brindle-archive-" + std::to_string(getpid());
    std::ofstream(path, std::ios::binary) << KeyedArchiver::archivedData(root).value();
    const nlohmann::json output = nlohmann::json::parse(testsupport::runArchiveScript("read '" + path + "'"), nullptr, false);
    unlink(path.c_str());
    ASSERT_EQ(output.size(), 2U);
    EXPECT_EQ(output[0]["name"], "a");
    EXPECT_EQ(output[1]["number"], 2);
}

TEST(KeyedArchiverTest, AnEmptyArrayIsARootLikeAnyOther) {
    const std::string bytes = KeyedArchiver::archivedData(std::vector<std::shared_ptr<const Coding>>()).value();
    EXPECT_TRUE(testsupport::nodeUnarchiver().unarchiveArray(bytes).value().value().empty());
}

TEST(KeyedArchiverTest, BytesStandWhereTheyAreUsed) {
    const auto root = std::make_shared<Node>("n");
    root->blob = std::string("\0\xFF", 2);
    const PropertyList list = PropertyList::read(archived(root)).value();
    const PropertyList::Index node = field(list, list.value(list.root, "$top").value(), "root");
    EXPECT_EQ(list.get<PropertyList::Data>(list.value(node, "blob").value())->bytes, root->blob);
    EXPECT_EQ(unarchived(archived(root))->blob, root->blob);
}

TEST(KeyedArchiverTest, NoObjectGivesAnError) {
    EXPECT_FALSE(KeyedArchiver::archivedData(nullptr));
}

} // namespace brindle
