#include "cli/TextTable.hpp"

#include <gtest/gtest.h>

namespace brindle {

TEST(TextTableTest, MakesEachColumnAsWideAsItsWidestCell) {
    TextTable table({"A", "Two", "C"});
    table.add({"wide", "b", "c"});
    EXPECT_EQ(table.text(), "A     Two  C\nwide  b    c\n");
}

TEST(TextTableTest, EndsALineBehindItsLastText) {
    TextTable table({"A", "B", "C"});
    table.add({"a", "", ""});
    table.add({"", "", "c"});
    EXPECT_EQ(table.text(), "A  B  C\na\n      c\n");
}

TEST(TextTableTest, LetsACellOfMoreThan80CharactersStandOut) {
    const std::string widest(80, 'x');
    TextTable table({"A", "B"});
    table.add({widest + "yy", "b"});
    table.add({"a", "b"});
    EXPECT_EQ(table.text(), "A" + std::string(81, ' ') + "B\n" + widest + "yy  b\na" + std::string(81, ' ') + "b\n");
}

TEST(TextTableTest, GrowsWithItsTextsAlone) {
    TextTable table({"A", "B"});
    table.add({std::string(100'000, 'x'), "b"});
    for (int row = 0; row < 100; ++row)
        table.add({"a", "b"});
    EXPECT_LT(table.text().size(), 1'000'000U);
}

} // namespace brindle
