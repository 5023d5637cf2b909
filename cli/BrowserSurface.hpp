#pragma once

#include "Brindle/browser/FeedsOutlineViewDataController.hpp"
#include "Brindle/library/SavedArticlesManager.hpp"
#include "cli/CommandResult.hpp"
#include "cli/Library.hpp"
#include "cli/Settings.hpp"
#include "foundation/UserDefaults.hpp"

#include <memory>
#include <tl/expected.hpp>

namespace brindle {

/// The browser's outline as the desktop program would have it of the stored library, without a desktop. Thread: main.
class BrowserSurface {
public:
    /// Opens the library, with its stored documents brought back and the collections made.
    static tl::expected<std::unique_ptr<BrowserSurface>, CommandError> open(const Settings& settings, Library::Purpose purpose);

    Library& library() { return *_library; }
    FeedsOutlineViewDataController& outline() { return *_outline; }

private:
    BrowserSurface(std::unique_ptr<Library> library, const std::shared_ptr<UserDefaults>& defaults, const Settings& settings);

    std::unique_ptr<Library> _library;
    std::shared_ptr<SavedArticlesManager> _savedArticlesManager;
    std::shared_ptr<FeedsOutlineViewDataController> _outline;
};

} // namespace brindle
