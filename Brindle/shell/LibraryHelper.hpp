#pragma once

#include "Brindle/library/FeedsManager.hpp"

namespace brindle {

/// What several actions do to the library in the same way. Thread: main.
class LibraryHelper {
public:
    enum class ImportMode { merge, replace };

    /// Appends entries to the end of the top level, in order, and attaches the library's delegate to those that are feeds; with `replace`
    /// the top level is emptied first. Nothing is fetched, started or saved. Kept as is: feeds inside the groups get no delegate.
    static void importFeeds(FeedsManager& manager, const FeedsManager::Feeds& feeds, ImportMode mode);
};

} // namespace brindle
