#pragma once

#include <string_view>

#include "html/OutputBuffer.hpp"

namespace brindle::html {

/// Which characters of a text are written as references; `&` and the no-break space always are.
struct EscapedCharacters {
    bool lessThan = true;
    bool greaterThan = true;
    bool quote = false;
};

/// Appends `text` with its special characters as references. Where `collapsesBlanks` is set, each run of ASCII white space becomes one
/// blank.
void appendEscaped(OutputBuffer& output, std::string_view text, EscapedCharacters escaped, bool collapsesBlanks);

} // namespace brindle::html
