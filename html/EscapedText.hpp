#pragma once

#include <cstdint>
#include <string_view>

#include "html/OutputBuffer.hpp"

namespace brindle::html {

/// Where escaped text stands. `&` and the no-break space are references everywhere.
enum class EscapedPlace : std::uint8_t {
    text,          ///< `<` and `>` as well.
    collapsedText, ///< As in text; and each run of ASCII white space becomes one blank.
    htmlAttribute, ///< `"` as well.
    xmlAttribute,  ///< `"` and `<` as well.
};

/// Appends `text` with its special characters as references.
void appendEscaped(OutputBuffer& output, std::string_view text, EscapedPlace place);

} // namespace brindle::html
