#pragma once

namespace brindle::html {

/// How names are read. Where a field is false, ASCII upper case is folded to lower case.
struct ParseSettings {
    bool preserveTagCase = false;
    bool preserveAttributeCase = false;
};

} // namespace brindle::html
