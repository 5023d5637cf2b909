#include "foundation/KeyedUnarchiver.hpp"

#include "tests/foundation/ArchiveSamples.hpp"
#include "tests/foundation/HandMadeArchive.hpp"
#include "tests/support/Corpus.hpp"

#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

namespace brindle {

using testsupport::archived;
using testsupport::errorOf;
using HandMade = testsupport::HandMadeArchive;
using testsupport::Node;
using testsupport::unarchived;

namespace {

void expectWhatTheScriptWrote(const std::string& form) {
    const std::string path = testing::TempDir() + "brindle-archive-" + std::to_string(getpid());
    testsupport::runArchiveScript("write '" + path + "' " + form);
    const std::string bytes = testsupport::bytesOf(path);
    unlink(path.c_str());
    const std::shared_ptr<Node> root = unarchived(bytes);
    ASSERT_TRUE(root) << errorOf(bytes);
    EXPECT_EQ(root->name, "r\xC3\xB6\xC3\xB6t");
    EXPECT_EQ(root->number, 41);
    ASSERT_EQ(root->children.size(), 2U);
    EXPECT_EQ(root->children[0], root->children[1]);
    EXPECT_EQ(root->children[0]->name, "child");
    EXPECT_EQ(root->children[0]->number, -7);
    EXPECT_EQ(root->children[0]->friendNode, nullptr);
    EXPECT_FALSE(root->children[0]->hasChildren);
    const std::vector<CodedDictionary> table = {{{"text", std::string("r\xC3\xB6\xC3\xB6t")}, {"integer", std::int64_t(-7)}}};
    EXPECT_EQ(root->table, table);
}

} // namespace

TEST(KeyedUnarchiverTest, ReadsAnArchiveOfAnotherWriter) {
    expectWhatTheScriptWrote("binary");
}

TEST(KeyedUnarchiverTest, ReadsTheXMLFormOfAnArchive) {
    expectWhatTheScriptWrote("xml");
}

TEST(KeyedUnarchiverTest, AnUnregisteredClassRefusesTheArchiveByName) {
    HandMade archive;
    archive.set(1, "friend", archive.uid(archive.addInstance("NSTask")));
    EXPECT_NE(errorOf(archive.bytes()).find("NSTask"), std::string::npos);
}

TEST(KeyedUnarchiverTest, AnInstanceOfADamagedClassRefusesTheArchive) {
    for (const std::uint64_t place : {std::uint64_t(0), std::uint64_t(99), std::uint64_t(1)}) {
        HandMade archive;
        const std::uint64_t instance = archive.add(PropertyList::Dictionary());
        archive.set(instance, "$class", archive.uid(place));
        archive.set(1, "friend", archive.uid(instance));
        EXPECT_NE(errorOf(archive.bytes()), "none");
    }
}

TEST(KeyedUnarchiverTest, AnUnregisteredClassThatNothingReachesIsNoMatter) {
    HandMade archive;
    archive.addInstance("NSTask");
    EXPECT_TRUE(unarchived(archive.bytes()));
}

TEST(KeyedUnarchiverTest, AnObjectThatCannotBeMadeIsLeftOut) {
    const auto root = std::make_shared<Node>("root");
    root->children = {std::make_shared<Node>("refused"), std::make_shared<Node>("b")};
    root->friendNode = root->children[0];
    const std::shared_ptr<Node> copy = unarchived(archived(root));
    ASSERT_TRUE(copy);
    ASSERT_EQ(copy->children.size(), 1U);
    EXPECT_EQ(copy->children[0]->name, "b");
    EXPECT_EQ(copy->friendNode, nullptr);
}

TEST(KeyedUnarchiverTest, ARootThatCannotBeMadeIsNull) {
    const auto root = testsupport::nodeUnarchiver().unarchive(archived(std::make_shared<Node>("refused")));
    ASSERT_TRUE(root);
    EXPECT_EQ(*root, nullptr);
}

TEST(KeyedUnarchiverTest, AnObjectInsideItselfReadsAsAbsentThere) {
    HandMade archive;
    const std::uint64_t array = archive.addInstance("NSArray");
    archive.set(array, "NS.objects", archive.list.add(PropertyList::Array{archive.uid(1), archive.uid(array)}));
    archive.set(1, "friend", archive.uid(1));
    archive.set(1, "children", archive.uid(array));
    const std::shared_ptr<Node> root = unarchived(archive.bytes());
    ASSERT_TRUE(root);
    EXPECT_EQ(root->friendNode, nullptr);
    EXPECT_TRUE(root->hasChildren);
    EXPECT_TRUE(root->children.empty());
}

TEST(KeyedUnarchiverTest, ValuesOfAnotherTypeReadAsMissing) {
    HandMade archive;
    const PropertyList::Index number = archive.uid(archive.add(std::int64_t(7)));
    const PropertyList::Index text = archive.uid(archive.add(std::string("7")));
    archive.set(1, "name", number);
    archive.set(1, "number", text);
    archive.set(1, "children", text);
    archive.set(1, "table", number);
    archive.set(1, "friend", text);
    const std::shared_ptr<Node> root = unarchived(archive.bytes());
    ASSERT_TRUE(root);
    EXPECT_EQ(root->name, "unnamed");
    EXPECT_EQ(root->number, -1);
    EXPECT_FALSE(root->hasChildren);
}

TEST(KeyedUnarchiverTest, TakesBooleansAndRealsForNumbers) {
    HandMade yes;
    yes.set(1, "number", yes.list.add(true));
    EXPECT_EQ(unarchived(yes.bytes())->number, 1);
    HandMade real;
    real.set(1, "number", real.uid(real.add(45.0)));
    EXPECT_EQ(unarchived(real.bytes())->number, 45);
}

TEST(KeyedUnarchiverTest, RefusesWhatIsNoArchive) {
    EXPECT_NE(errorOf(""), "none");
    EXPECT_NE(errorOf("bplist00"), "none");
    EXPECT_NE(errorOf("<plist><dict/></plist>"), "none");
    EXPECT_NE(errorOf("<plist><dict><key>$objects</key><array/><key>$top</key><dict/></dict></plist>"), "none");
    HandMade archive;
    EXPECT_NE(errorOf(archive.bytes(99)), "none");
}

TEST(KeyedUnarchiverTest, ARootOfAnotherKindIsNull) {
    HandMade archive;
    const std::uint64_t array = archive.addInstance("NSArray");
    const auto root = testsupport::nodeUnarchiver().unarchive(archive.bytes(array));
    ASSERT_TRUE(root);
    EXPECT_EQ(*root, nullptr);
}

TEST(KeyedUnarchiverTest, ReadsBytesInlineAndByReference) {
    HandMade inside;
    inside.set(1, "blob", inside.list.add(PropertyList::Data{"abc"}));
    EXPECT_EQ(unarchived(inside.bytes())->blob, "abc");
    HandMade referred;
    referred.set(1, "blob", referred.uid(referred.add(PropertyList::Data{"abc"})));
    EXPECT_EQ(unarchived(referred.bytes())->blob, "abc");
    HandMade text;
    text.set(1, "blob", text.list.add(std::string("abc")));
    EXPECT_EQ(unarchived(text.bytes())->blob, "");
}

TEST(KeyedUnarchiverTest, ARootThatIsNoArrayGivesNone) {
    EXPECT_EQ(testsupport::nodeUnarchiver().unarchiveArray(archived(std::make_shared<Node>("n"))).value(), std::nullopt);
    HandMade archive;
    EXPECT_EQ(testsupport::nodeUnarchiver().unarchiveArray(archive.bytes(archive.addInstance("NSDictionary"))).value(), std::nullopt);
}

TEST(KeyedUnarchiverTest, ReadsAMutableArrayForRoot) {
    HandMade archive;
    const std::uint64_t array = archive.addInstance("NSMutableArray");
    archive.set(array, "NS.objects", archive.list.add(PropertyList::Array{archive.uid(1), archive.uid(1)}));
    EXPECT_EQ(testsupport::nodeUnarchiver().unarchiveArray(archive.bytes(array)).value().value().size(), 2U);
}

TEST(KeyedUnarchiverTest, ARootArrayWithAnythingButMadeObjectsGivesNone) {
    const auto arrayWith = [](const auto& makeElement) {
        HandMade archive;
        const PropertyList::Index element = makeElement(archive);
        const std::uint64_t array = archive.addInstance("NSArray");
        archive.set(array, "NS.objects", archive.list.add(PropertyList::Array{archive.uid(1), element}));
        return testsupport::nodeUnarchiver().unarchiveArray(archive.bytes(array)).value();
    };
    EXPECT_TRUE(arrayWith([](HandMade& archive) { return archive.uid(1); }));
    EXPECT_FALSE(arrayWith([](HandMade& archive) { return archive.uid(archive.add(std::string("text"))); }));
    EXPECT_FALSE(arrayWith([](HandMade& archive) { return archive.uid(0); }));
    EXPECT_FALSE(arrayWith([](HandMade& archive) { return archive.uid(99); }));
    EXPECT_FALSE(arrayWith([](HandMade& archive) { return archive.uid(archive.addInstance("NSArray")); }));
    EXPECT_FALSE(arrayWith([](HandMade& archive) { return archive.uid(archive.addInstance("NSDictionary")); }));
}

TEST(KeyedUnarchiverTest, ARootArrayWithAnUnregisteredClassIsRefused) {
    HandMade archive;
    const std::uint64_t array = archive.addInstance("NSArray");
    archive.set(array, "NS.objects", archive.list.add(PropertyList::Array{archive.uid(archive.addInstance("NSTask"))}));
    EXPECT_FALSE(testsupport::nodeUnarchiver().unarchiveArray(archive.bytes(array)));
}

TEST(KeyedUnarchiverTest, ATruncatedArchiveIsRefused) {
    const auto root = std::make_shared<Node>("root", 70'000);
    root->children = {std::make_shared<Node>("\xC3\xA9")};
    const std::string bytes = archived(root);
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_NE(errorOf(bytes.substr(0, size)), "none") << size;
}

TEST(KeyedUnarchiverTest, ADamagedArchiveIsRefusedOrRead) {
    const auto root = std::make_shared<Node>("root", 70'000);
    root->children = {std::make_shared<Node>("\xC3\xA9")};
    root->table = {{{"k", std::string("v")}}};
    const std::string bytes = archived(root);
    std::size_t refused = 0;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        for (const unsigned change : {0x01U, 0x10U, 0x80U, 0xFFU}) {
            std::string damaged = bytes;
            damaged[at] = static_cast<char>(static_cast<unsigned char>(damaged[at]) ^ change);
            refused += errorOf(damaged) != "none";
        }
    }
    EXPECT_GT(refused, bytes.size());
}

} // namespace brindle
