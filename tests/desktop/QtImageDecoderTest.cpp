#include "desktop/system/QtImageDecoder.hpp"

#include <gtest/gtest.h>

namespace brindle::desktop {

TEST(QtImageDecoderTest, GivesAnImageOfTheBytesWhereTheyAreOne) {
    const std::string drawing = R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8"><rect width="8" height="8"/></svg>)";
    const auto image = QtImageDecoder().decode(drawing);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->data(), drawing);
}

TEST(QtImageDecoderTest, GivesNothingForOtherBytes) {
    EXPECT_FALSE(QtImageDecoder().decode(""));
    EXPECT_FALSE(QtImageDecoder().decode("<html></html>"));
}

} // namespace brindle::desktop
