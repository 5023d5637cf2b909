#include "cli/BrowserSurface.hpp"

#include "Brindle/library/CollectionEntityManager.hpp"
#include "cli/PreferenceStore.hpp"

#include <utility>

namespace brindle {

tl::expected<std::unique_ptr<BrowserSurface>, CommandError> BrowserSurface::open(const Settings& settings, Library::Purpose purpose) {
    auto defaults = openPreferences(settings);
    if (!defaults)
        return tl::unexpected(std::move(defaults.error()));
    auto library = Library::open(settings, purpose, Library::Network::none);
    if (!library)
        return tl::unexpected(std::move(library.error()));
    (*library)->bringBack((*library)->manager().feeds);
    return std::unique_ptr<BrowserSurface>(new BrowserSurface(*std::move(library), *defaults, settings));
}

BrowserSurface::BrowserSurface(std::unique_ptr<Library> library, const std::shared_ptr<UserDefaults>& defaults, const Settings& settings)
    : _library(std::move(library)) {
    const std::shared_ptr<FeedsManager>& feedsManager = _library->sharedManager();
    _savedArticlesManager = std::make_shared<SavedArticlesManager>(feedsManager->supportDirectory(), feedsManager->environment());
    _savedArticlesManager->load();
    const auto collections = std::make_shared<CollectionEntityManager>(feedsManager, _savedArticlesManager, defaults, settings.clock);
    _outline = FeedsOutlineViewDataController::make(feedsManager, collections, defaults, {});
}

} // namespace brindle
