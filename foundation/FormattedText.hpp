#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// The text of a format, such as the tables of texts have: each "%@" and "%d" replaced by the next of `values`. What has no value stays,
/// and values are not looked through for places of their own. UTF-8. Thread: any.
std::string formatted(std::string_view format, const std::vector<std::string>& values);

} // namespace brindle
