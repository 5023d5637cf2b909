#pragma once

#include "foundation/Date.hpp"

#include <array>
#include <optional>
#include <string_view>

namespace brindle {

/// The date patterns (UTS #35) that feeds are read by, in the order in which they are tried.
struct FeedFormat {
    static constexpr std::string_view rss = "EEE, dd MMM yyyy HH:mm:ss zzz";
    static constexpr std::string_view atom = "yyyy-MM-dd'T'HH:mm:ss'Z'";
    static constexpr std::string_view atom2 = "yyyy-MM-dd'T'HH:mm:ssZZZZZ";
    static constexpr std::string_view atom3 = "yyyy-MM-dd'T'HH:mm:ss.SZ";
    static constexpr std::array all = {rss, atom, atom2, atom3};
};

/// The date of a feed's date text by the first pattern that it matches, in the user's locale and time zone. Absent for any other text.
/// Thread: any.
std::optional<Date> parseFeedDate(std::string_view text);

} // namespace brindle
