#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `articles`: the articles of the library or of one entry of the tree.
Command articlesCommand();
/// `search`: the articles whose title contains a term.
Command searchCommand();
/// `mark`: marks articles as read or unread.
Command markCommand();

} // namespace brindle
