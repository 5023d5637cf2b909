#pragma once

#include "foundation/URL.hpp"

#include <string>
#include <vector>

namespace brindle {

/// The addresses of a page's icon links, in page order: of its `link` elements whose "rel" ends with "icon" or starts with "shortcut" in
/// any case. `page` is UTF-8, relative addresses are resolved against `root`. Prints "Could not make document!" when the page can't be
/// read. Thread: any.
std::vector<URL> iconLinks(std::string page, const URL& root);

} // namespace brindle
