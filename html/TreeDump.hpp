#pragma once

#include <string>

#include "html/Node.hpp"

namespace brindle::html {

/// The tree below a document, or a node with what is below it, in the line format of the html5lib tree tests: `| <html>`, attributes sorted
/// by key, two blanks per level, each line ended by a line feed. Adjacent texts are shown as one. In HTML, what is below a `template`
/// stands below a line `content`. Indentation stops growing at 256 levels.
std::string html5libDump(const Node& node);

} // namespace brindle::html
