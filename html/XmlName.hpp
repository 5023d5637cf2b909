#pragma once

#include <string_view>

namespace brindle::html {

/// Whether `text` is a Name of XML 1.0 (fifth edition, section 2.3). Safe on every thread.
bool isXmlName(std::string_view text) noexcept;

} // namespace brindle::html
