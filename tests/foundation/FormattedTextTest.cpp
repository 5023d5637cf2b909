#include "foundation/FormattedText.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

TEST(FormattedTextTest, TakesTheValuesInTheirOrder) {
    EXPECT_EQ(formatted("%@ has %d new %@.", {"Example", "2", "articles"}), "Example has 2 new articles.");
}

TEST(FormattedTextTest, LeavesAPlaceThatHasNoValue) {
    EXPECT_EQ(formatted("%d of %d", {"1"}), "1 of %d");
    EXPECT_EQ(formatted("100 %", {"1"}), "100 %");
}

TEST(FormattedTextTest, LooksForNoPlacesInAValue) {
    EXPECT_EQ(formatted("%@: %d", {"%d%@", "3"}), "%d%@: 3");
}

} // namespace
} // namespace brindle
