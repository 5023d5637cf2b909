#include "foundation/UUID.hpp"

#include <gtest/gtest.h>

namespace brindle {

TEST(UUIDTest, WritesUpperCaseAndReadsEitherCase) {
    const std::optional<UUID> uuid = UUID::make("0123abcd-4567-89ef-ABCD-0123456789aB");
    ASSERT_TRUE(uuid);
    EXPECT_EQ(uuid->uuidString(), "0123ABCD-4567-89EF-ABCD-0123456789AB");
    EXPECT_EQ(UUID::make(uuid->uuidString()), uuid);
}

TEST(UUIDTest, RefusesAnyOtherForm) {
    for (const std::string_view bad :
        {"", "0123abcd-4567-89ef-abcd-0123456789a", "0123abcd-4567-89ef-abcd-0123456789abc", "0123abcd04567-89ef-abcd-0123456789ab",
            "0123abcd-4567-89ef-abcd-0123456789ag", "{123abcd-4567-89ef-abcd-0123456789a}", "0123abc--4567-89ef-abcd-0123456789ab"})
        EXPECT_EQ(UUID::make(bad), std::nullopt) << bad;
}

TEST(UUIDTest, RandomOnesDifferAndSayTheirVersion) {
    const UUID first = UUID::random();
    const std::string text = first.uuidString();
    EXPECT_NE(first, UUID::random());
    EXPECT_EQ(text[14], '4');
    EXPECT_NE(std::string_view("89AB").find(text[19]), std::string_view::npos);
}

} // namespace brindle
