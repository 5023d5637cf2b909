#pragma once

#include "SyndicatedParser/SyndicatedSession.hpp"

#include <memory>
#include <string_view>

namespace brindle {

class FeedGroup;

/// The form in which the program's first versions kept the tree: a property list, an array of dictionaries with "Kind". It is read and
/// never written. Thread: main.
class LegacyLibrary {
public:
    /// Appends what can be read to `group`; dictionaries that lack what they need are passed over, and bytes that are no array give
    /// nothing.
    static void importInto(FeedGroup& group, std::string_view bytes, const SyndicatedSessionEnvironment& environment);
};

} // namespace brindle
