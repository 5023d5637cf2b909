#pragma once

#include "foundation/URL.hpp"

#include <string>
#include <variant>

namespace brindle {

/// An outline that is a feed.
struct OPMLFeed {
    std::string title; ///< may be empty
    URL url;
};

/// An outline that is a group. What follows belongs into it.
struct OPMLGroup {
    std::string title; ///< may be empty
};

/// What follows belongs one level up.
struct OPMLGroupEnd {};

/// One step in the making of a tree out of outlines; plain values, that may be made on any thread.
using OPMLEvent = std::variant<OPMLFeed, OPMLGroup, OPMLGroupEnd>;

} // namespace brindle
