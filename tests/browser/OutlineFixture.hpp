#pragma once

#include "Brindle/browser/FeedsOutlineViewDataController.hpp"
#include "tests/browser/BrowserFixture.hpp"
#include "tests/fakes/OutlineViewFake.hpp"

#include <memory>
#include <string>

namespace brindle {

/// The name of a row for logs: the section's or the collection's kind, the entry's name, "-" for a separator, "root" for none.
inline std::string rowName(const OutlineItem& item) {
    using Section = FeedsOutlineViewDataControllerCollectionGroup;
    using Collection = FeedsOutlineViewDataControllerCollectionItem;
    if (const auto section = std::dynamic_pointer_cast<Section>(item))
        return section->kind == Section::Kind::feeds ? "FEEDS" : "COLLECTIONS";
    if (const auto collection = std::dynamic_pointer_cast<Collection>(item)) {
        switch (collection->kind) {
        case Collection::Kind::today:
            return "today";
        case Collection::Kind::unread:
            return "unread";
        case Collection::Kind::saved:
            return "saved";
        default:
            return "other";
        }
    }
    const auto feed = std::dynamic_pointer_cast<Feed>(item);
    if (!feed)
        return "root";
    return feed->kind == Feed::Kind::separator ? "-" : feed->name();
}

/// An outline that the controller serves, on a tree that the test makes.
class OutlineTest : public BrowserTest {
protected:
    using Controller = FeedsOutlineViewDataController;
    using Section = FeedsOutlineViewDataControllerCollectionGroup;
    using Collection = FeedsOutlineViewDataControllerCollectionItem;

    OutlineTest() {
        view->name = rowName;
        controller->outlineView = view;
    }

    /// Binds the outline, shows the tree and forgets the calls.
    void show() {
        controller->configure();
        controller->reload();
        takeCalls();
    }
    std::vector<std::string> rows() const {
        std::vector<std::string> found;
        for (const OutlineItem& item : view->rows())
            found.push_back(rowName(item));
        return found;
    }
    OutlineItem feedsSection() const { return controller->groupOfKind(Section::Kind::feeds); }
    OutlineItem collectionRow(Collection::Kind kind) const {
        for (const auto& item : controller->groupOfKind(Section::Kind::collections)->items) {
            if (item->kind == kind)
                return item;
        }
        return nullptr;
    }
    void setCollections(bool today, bool unread, bool savedArticles) {
        set(preference::showTodayCollectionInFeedsBrowser, today);
        set(preference::showUnreadCollectionInFeedsBrowser, unread);
        set(preference::showSavedArticlesCollectionInFeedsBrowser, savedArticles);
    }

    std::shared_ptr<OutlineViewFake> view = std::make_shared<OutlineViewFake>(log);
    std::shared_ptr<Controller> controller = Controller::make(manager, collections, defaults, host);
};

} // namespace brindle
