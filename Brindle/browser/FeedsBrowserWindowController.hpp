#pragma once

#include "Brindle/browser/ArticleSearch.hpp"
#include "Brindle/browser/FeedsBrowserSplitViewController.hpp"
#include "Brindle/browser/RemoveFeedToolbarItem.hpp"
#include "platform/PopUpButton.hpp"
#include "platform/SearchField.hpp"
#include "platform/Window.hpp"

#include <memory>
#include <string_view>

namespace brindle {

/// The feeds browser: three panes, and a toolbar to add and remove feeds and to search. Made once; closing the window hides it. Thread:
/// main.
class FeedsBrowserWindowController {
public:
    static constexpr std::string_view windowTitle = "Feeds Browser";
    static constexpr std::string_view frameAutosaveName = "FeedsBrowserWindowController";

    /// The tags of the pop-up's items.
    enum class FeedPopUpTag { addFeed = 0, addGroup, addSeparator, importFeeds, exportFeeds };

    /// `removeFeedToolbarItem` is the one that the feeds' pane keeps current.
    FeedsBrowserWindowController(FeedsBrowserEnvironment environment, std::shared_ptr<Window> window,
        std::shared_ptr<FeedsBrowserSplitViewController> splitViewController, std::shared_ptr<RemoveFeedToolbarItem> removeFeedToolbarItem);

    PopUpButton feedPopUpButton;
    const std::shared_ptr<RemoveFeedToolbarItem> removeFeedToolbarItem;
    SearchField searchField;
    std::weak_ptr<Feed> selectedFeed; ///< what to reveal when the window is shown

    FeedsBrowserSplitViewController& splitViewController() const { return *_splitViewController; }
    bool isWindowVisible() const { return _window->isVisible(); }

    /// Before the window is first shown.
    void windowDidLoad();
    void showWindow();
    /// The selected item of the pop-up was chosen.
    void feedPopUpChanged();
    /// Removes the selected feed without a question.
    void removeSelectedFeed();
    /// A person goes to the search field: makes ready for the first term.
    void searchFieldDidStartSearching();
    /// The term in the search field is another: lists the articles of the whole library whose titles have it.
    void controlTextDidChange();

private:
    void buildFeedPopUp();
    void endSearch();

    const FeedsBrowserEnvironment _environment;
    const std::shared_ptr<Window> _window;
    const std::shared_ptr<FeedsBrowserSplitViewController> _splitViewController;
    ArticleSearch _search;
};

} // namespace brindle
