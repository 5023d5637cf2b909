#include "cli/MenuSurface.hpp"

#include "Brindle/library/SavedArticlesManager.hpp"
#include "Brindle/shell/MenuValidation.hpp"
#include "Brindle/shell/Preferences.hpp"
#include "cli/PreferenceStore.hpp"
#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

namespace {

/// Notes down what would be shown.
class NotedStatusItem : public StatusItem {
public:
    explicit NotedStatusItem(std::shared_ptr<MenuSurface::Status> status) : _status(std::move(status)) {}

    void setImage(const std::optional<Image>& image) override { _status->icon = image ? image->name() : std::string(); }
    void setImagePosition(ImagePosition) override {}
    void setTitle(const std::string& title) override { _status->title = title; }
    void setToolTip(const std::string& text) override { _status->toolTip = text; }
    void setHighlights(bool) override {}
    void setMenu(const std::shared_ptr<Menu>&) override {}

private:
    std::shared_ptr<MenuSurface::Status> _status;
};

class NotedDockTile : public DockTile {
public:
    explicit NotedDockTile(std::shared_ptr<MenuSurface::Status> status) : _status(std::move(status)) {}

    void setBadgeLabel(const std::optional<std::string>& label) override { _status->badge = label; }

private:
    std::shared_ptr<MenuSurface::Status> _status;
};

/// The desktop program's delegate as far as the look of the menu depends on it, with no browser on the screen. Nobody clicks here.
class ApplicationDelegate : public ActionHandler {
public:
    explicit ApplicationDelegate(const FeedsManager::Feeds& feeds) : _counts(feeds) {}

    bool respondsTo(std::string_view) const override { return true; }
    void perform(const Action&) override {}
    bool validateMenuItem(const MenuItem& item) const override {
        const auto count = [this](const std::shared_ptr<Feed>& feed) {
            return feed ? _counts.of(*feed).value_or(ArticleCounts::Count()) : _counts.total();
        };
        return isMenuItemValid(item, count, false);
    }

private:
    const ArticleCounts _counts;
};

} // namespace

tl::expected<std::unique_ptr<MenuSurface>, CommandError> MenuSurface::open(const Settings& settings) {
    auto defaults = openPreferences(settings);
    if (!defaults)
        return tl::unexpected(std::move(defaults.error()));
    auto library = Library::open(settings, Library::Purpose::reading, Library::Network::none);
    if (!library)
        return tl::unexpected(std::move(library.error()));
    (*library)->bringBack((*library)->manager().feeds);
    return std::unique_ptr<MenuSurface>(new MenuSurface(*std::move(library), *std::move(defaults), settings));
}

MenuSurface::MenuSurface(std::unique_ptr<Library> library, std::shared_ptr<UserDefaults> defaults, const Settings& settings)
    : _library(std::move(library)) {
    const std::shared_ptr<FeedsManager>& feedsManager = _library->sharedManager();
    _savedArticlesManager = std::make_shared<SavedArticlesManager>(feedsManager->supportDirectory(), feedsManager->environment());
    _savedArticlesManager->load();
    _applicationDelegate = std::make_shared<ApplicationDelegate>(feedsManager->feeds);
    _responderChain.setHandlers({_applicationDelegate});
    MenuEnvironment environment;
    environment.feedsManager = feedsManager;
    environment.collectionEntityManager =
        std::make_shared<CollectionEntityManager>(feedsManager, _savedArticlesManager, defaults, settings.clock);
    environment.defaults = std::move(defaults);
    environment.statusItem = std::make_shared<NotedStatusItem>(_status);
    environment.dockTile = std::make_shared<NotedDockTile>(_status);
    environment.applicationDelegate = _applicationDelegate;
    environment.statusIconName = statusIconName;
    _menuExtraManager = MenuExtraManager::make(std::move(environment));
}

void MenuSurface::update() {
    _menuExtraManager->updateMenu();
    RunLoop::main().runPending();
}

} // namespace brindle
