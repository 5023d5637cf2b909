#pragma once

#include "Brindle/menu/ArticleCounts.hpp"
#include "Brindle/menu/MenuExtraManager.hpp"
#include "cli/CommandResult.hpp"
#include "cli/Library.hpp"
#include "cli/Settings.hpp"
#include "platform/ResponderChain.hpp"

#include <memory>
#include <optional>
#include <string>
#include <tl/expected.hpp>

namespace brindle {

/// The status item and its menu as the desktop program would show them of the stored library, without a desktop. Thread: main.
class MenuSurface {
public:
    /// What the status item and the dock show.
    struct Status {
        std::string icon;
        std::string title;
        std::string toolTip;
        std::optional<std::string> badge; ///< absent: no badge at all
    };

    /// Opens the library for reading, with its stored documents brought back and the collections made.
    static tl::expected<std::unique_ptr<MenuSurface>, CommandError> open(const Settings& settings);

    /// Builds the menu, and what the status item and the dock show.
    void update();

    Menu& menu() const { return *_menuExtraManager->menu(); }
    const Status& status() const { return *_status; }
    bool isPaused() const { return !_library->manager().allowUpdates; }
    /// Who takes the menu's actions; good to validate its items.
    const ResponderChain& responderChain() const { return _responderChain; }

private:
    MenuSurface(std::unique_ptr<Library> library, std::shared_ptr<UserDefaults> defaults, const Settings& settings);

    std::unique_ptr<Library> _library;
    std::shared_ptr<Status> _status = std::make_shared<Status>();
    std::shared_ptr<SavedArticlesManager> _savedArticlesManager;
    std::shared_ptr<ActionHandler> _applicationDelegate;
    ResponderChain _responderChain;
    std::shared_ptr<MenuExtraManager> _menuExtraManager;
};

} // namespace brindle
