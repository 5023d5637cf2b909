#include "foundation/ColdBytes.hpp"

#include "tests/support/TemporaryFolder.hpp"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace brindle {
namespace {

class ColdBytesTest : public testing::Test {
protected:
    std::filesystem::path file(const std::string& name, const std::string& bytes) const {
        std::filesystem::path path = _folder.path() / name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }

    TemporaryFolder _folder;
};

TEST_F(ColdBytesTest, IsEmptyWithoutBytes) {
    EXPECT_TRUE(ColdBytes().empty());
    EXPECT_TRUE(ColdBytes("").empty());
    EXPECT_EQ(ColdBytes().bytes(), "");
    EXPECT_EQ(ColdBytes(), ColdBytes(""));
}

TEST_F(ColdBytesTest, GivesWhatItWasMadeOf) {
    const std::string bytes("a\0\xff", 3);
    EXPECT_EQ(ColdBytes(bytes).bytes(), bytes);
    EXPECT_EQ(ColdBytes(bytes).size(), 3U);
    EXPECT_EQ(ColdBytes(bytes), ColdBytes(bytes));
    EXPECT_NE(ColdBytes(bytes), ColdBytes("b"));
}

TEST_F(ColdBytesTest, GivesTheSameBytesCompressed) {
    for (const std::string& bytes : {std::string(100'000, 'x'), std::string("too short to gain")}) {
        const ColdBytes cold(bytes);
        cold.compress();
        cold.compress();
        EXPECT_EQ(cold.bytes(), bytes);
        EXPECT_EQ(cold.size(), bytes.size());
    }
}

TEST_F(ColdBytesTest, ReadsAFileOnlyWhenItIsAsked) {
    const auto path = file("a", "bytes");
    const ColdBytes cold = ColdBytes::ofFile(path);
    EXPECT_FALSE(cold.empty());
    EXPECT_EQ(cold.size(), 5U);
    EXPECT_EQ(cold.file(), path);
    EXPECT_EQ(cold.bytes(), "bytes");
}

TEST_F(ColdBytesTest, IsEmptyWhereThereIsNoFile) {
    EXPECT_TRUE(ColdBytes::ofFile(_folder.path() / "none").empty());
    EXPECT_TRUE(ColdBytes::ofFile(_folder.path()).empty());
    EXPECT_TRUE(ColdBytes::ofFile(file("empty", "")).empty());
}

TEST_F(ColdBytesTest, GivesNothingWhereOthersChangedTheFile) {
    const auto path = file("a", "bytes");
    const ColdBytes changed = ColdBytes::ofFile(path);
    file("b", "other");
    std::filesystem::rename(_folder.path() / "b", path);
    EXPECT_EQ(changed.bytes(), "");
    const ColdBytes removed = ColdBytes::ofFile(path);
    std::filesystem::remove(path);
    EXPECT_EQ(removed.bytes(), "");
    EXPECT_EQ(removed.size(), 5U);
}

TEST_F(ColdBytesTest, LeavesItsBytesInAFileForAllItsCopies) {
    const ColdBytes cold("bytes"), copy = cold;
    cold.leaveIn(file("a", "bytes"));
    EXPECT_EQ(copy.file(), _folder.path() / "a");
    EXPECT_EQ(copy.bytes(), "bytes");
}

TEST_F(ColdBytesTest, StaysInMemoryWhereTheFileIsOfAnotherSizeOrGone) {
    const ColdBytes cold("bytes");
    cold.leaveIn(file("a", "more bytes"));
    EXPECT_EQ(cold.file(), "");
    cold.leaveIn(_folder.path() / "none");
    EXPECT_EQ(cold.file(), "");
    EXPECT_EQ(cold.bytes(), "bytes");
}

TEST_F(ColdBytesTest, OutlivesItsFileOnceTakenBack) {
    const auto path = file("a", "bytes");
    const ColdBytes cold = ColdBytes::ofFile(path);
    cold.takeBack();
    EXPECT_EQ(cold.file(), "");
    std::filesystem::remove(path);
    EXPECT_EQ(cold.bytes(), "bytes");
}

TEST_F(ColdBytesTest, KnowsItsCopies) {
    const ColdBytes cold("bytes");
    EXPECT_FALSE(cold.isShared());
    const ColdBytes copy = cold;
    EXPECT_TRUE(cold.isShared());
    EXPECT_TRUE(cold.isSameObject(copy));
    EXPECT_FALSE(cold.isSameObject(ColdBytes("bytes")));
}

} // namespace
} // namespace brindle
