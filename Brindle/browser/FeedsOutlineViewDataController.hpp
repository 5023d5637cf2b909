#pragma once

#include "Brindle/browser/FeedsBrowserHost.hpp"
#include "Brindle/browser/FeedsOutlineCells.hpp"
#include "Brindle/browser/FeedsOutlineViewDataControllerCollectionGroup.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/NotificationCenter.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/OutlineView.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace brindle {

/// Is told what is selected in the outline.
class FeedsOutlineViewDataControllerDelegate {
public:
    virtual ~FeedsOutlineViewDataControllerDelegate() = default;
    /// Null: nothing.
    virtual void outlineSelectionDidChange(const OutlineItem& item) = 0;
};

/// Serves the outline of the browser: the collections and the tree of feeds, kept current by notices, and reordering by drag and drop. A
/// row stands for a section, a collection or an entry of the tree. Thread: main.
class FeedsOutlineViewDataController : public OutlineViewDataSource,
                                       public OutlineViewDelegate,
                                       public std::enable_shared_from_this<FeedsOutlineViewDataController> {
public:
    using CollectionGroup = FeedsOutlineViewDataControllerCollectionGroup;
    using CollectionItem = FeedsOutlineViewDataControllerCollectionItem;
    using Collections = std::vector<std::shared_ptr<CollectionGroup>>;

    /// The type of what is dragged within the outline; nothing else can be dropped on it.
    static constexpr std::string_view pasteboardType = "public.brindle";

    static std::shared_ptr<FeedsOutlineViewDataController> make(std::shared_ptr<FeedsManager> feedsManager,
        std::shared_ptr<const CollectionEntityManager> collectionEntityManager, std::shared_ptr<const UserDefaults> defaults,
        std::weak_ptr<FeedsBrowserHost> host);

    std::weak_ptr<FeedsOutlineViewDataControllerDelegate> delegate;
    std::weak_ptr<OutlineView> outlineView;

    const Collections& collections() const { return _collections; }
    const std::vector<std::shared_ptr<Feed>>& draggedFeeds() const { return _draggedFeeds; }

    /// Binds itself to the outline.
    void configure();
    /// Makes the sections by the preferences, and shows all anew with both sections expanded and all groups collapsed.
    void reload();
    /// Null where there is none.
    std::shared_ptr<CollectionGroup> groupOfKind(CollectionGroup::Kind kind) const;
    /// Of each selected row, in order.
    std::vector<OutlineItem> selectedItems() const;
    /// Expands what is above the entry, selects its row alone, and scrolls to it.
    void reveal(const std::shared_ptr<Feed>& feed);
    /// Of the collections, a group and all above it; `group` may be null.
    void reloadCounts(const std::shared_ptr<FeedGroup>& group);
    /// Clears the row of an entry that was taken from that place of the library.
    void removeRow(std::size_t index, const std::shared_ptr<FeedGroup>& parent);
    /// The articles of the collection that a row stands for; null for any other row.
    std::shared_ptr<const CollectionEntity<FeedItemArticle>> collection(const CollectionItem& item) const {
        return _cells.collection(item);
    }

    std::size_t numberOfChildren(const OutlineItem& item) const override;
    OutlineItem child(std::size_t index, const OutlineItem& item) const override;
    bool isItemExpandable(const OutlineItem& item) const override;
    std::optional<PasteboardItem> pasteboardWriter(const OutlineItem& item) const override;
    void draggingSessionWillBegin(const std::vector<OutlineItem>& items) override;
    void draggingSessionEnded() override;
    DragOperation validateDrop(const Pasteboard& pasteboard, const OutlineItem& item, std::ptrdiff_t index) const override;
    bool acceptDrop(const Pasteboard& pasteboard, const OutlineItem& item, std::ptrdiff_t index) override;

    /// Null for no row.
    std::shared_ptr<TableCellView> viewFor(const OutlineItem& item) const override;
    bool shouldExpandItem(const OutlineItem& item) const override { return isItemExpandable(item); }
    bool isGroupItem(const OutlineItem& item) const override;
    double heightOfRow(const OutlineItem& item) const override;
    bool shouldSelectItem(const OutlineItem& item) const override;
    void outlineViewSelectionDidChange() override;

private:
    using Reaction = void (FeedsOutlineViewDataController::*)(const std::shared_ptr<Object>& subject);

    FeedsOutlineViewDataController(std::shared_ptr<FeedsManager> feedsManager,
        std::shared_ptr<const CollectionEntityManager> collectionEntityManager, std::shared_ptr<const UserDefaults> defaults,
        std::weak_ptr<FeedsBrowserHost> host);

    void observe(std::string_view name, Reaction reaction);
    void feedItemDidFinishParsing(const std::shared_ptr<Object>& subject);
    void feedItemDidUpdateFeedItemImage(const std::shared_ptr<Object>& subject);
    void didSaveArticle(const std::shared_ptr<Object>& subject);
    void didUnsaveArticle(const std::shared_ptr<Object>& subject);
    void didAddFeed(const std::shared_ptr<Object>& subject);
    void didUpdateFeed(const std::shared_ptr<Object>& subject);
    void didUpdateCollections(const std::shared_ptr<Object>& subject);

    void buildCollections();
    OutlineItem outlineParent(const std::shared_ptr<FeedGroup>& group) const;
    const std::vector<std::shared_ptr<Feed>>* feedsBelow(const OutlineItem& item) const;
    bool isInDrag(const FeedGroup& group) const;
    std::size_t move(const std::shared_ptr<Feed>& feed, const std::shared_ptr<FeedGroup>& target, std::size_t index);
    void reloadCollectionRows(std::optional<CollectionItem::Kind> kind = std::nullopt);
    void reloadRowAndAncestors(const std::shared_ptr<Feed>& feed);
    void expandAncestors(const Feed& feed);

    const std::shared_ptr<FeedsManager> _feedsManager;
    const std::shared_ptr<const UserDefaults> _defaults;
    const std::weak_ptr<FeedsBrowserHost> _host;
    const FeedsOutlineCells _cells;
    Collections _collections;
    std::vector<std::shared_ptr<Feed>> _draggedFeeds; ///< of the drag under way
    std::vector<NotificationCenter::Token> _tokens;
};

} // namespace brindle
