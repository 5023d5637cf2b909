#include "foundation/FatalError.hpp"

#include <gtest/gtest.h>

namespace brindle {

TEST(FatalErrorDeathTest, SaysWhyAndEndsTheProcess) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_DEATH(fatalError("the reason"), "^Fatal error: the reason\n");
}

} // namespace brindle
