#pragma once

#include <string>
#include <string_view>

namespace brindle {

/// `text` for a line that a person reads: each control character (C0, DEL, C1) is a blank, so that text from outside can neither break the
/// line nor command the terminal.
std::string singleLine(std::string_view text);

} // namespace brindle
