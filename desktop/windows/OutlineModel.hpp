#pragma once

#include "platform/OutlineViewDataSource.hpp"

#include <QAbstractItemModel>
#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

namespace brindle::desktop {

/// The rows of an outline as an item model. Those below the root are asked for at once, others when their parent is looked into, and what a
/// row shows when it is drawn; all are kept until told otherwise. Thread: main.
class OutlineModel : public QAbstractItemModel {
public:
    OutlineModel();
    ~OutlineModel() override;

    void setDataSource(std::weak_ptr<OutlineViewDataSource> dataSource);
    void setDelegate(std::weak_ptr<OutlineViewDelegate> delegate) { _delegate = std::move(delegate); }

    /// Null for the root.
    OutlineItem item(const QModelIndex& index) const;
    /// Invalid for the root, and for an item that was not asked for yet.
    QModelIndex indexOf(const OutlineItem& item) const;

    /// The items whose children were asked for and are others by now, though nobody told of that.
    std::vector<OutlineItem> itemsOutOfStep() const;
    /// Takes the children of an item as they are; those before the first that differs are left alone.
    void catchUp(const OutlineItem& item);

    // What the data source has done.
    void reloadData();
    void reloadItem(const OutlineItem& item, bool reloadChildren);
    void insertItem(std::size_t index, const OutlineItem& parent);
    void removeItem(std::size_t index, const OutlineItem& parent);
    void moveItem(std::size_t index, const OutlineItem& parent, std::size_t newIndex, const OutlineItem& newParent);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex&) const override { return 1; }
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Node;

    Node& node(const QModelIndex& index) const;
    Node* find(const OutlineItem& item) const;
    QModelIndex index(const Node& node) const;
    void load(Node& node) const;
    std::size_t childrenInStep(const Node& node) const;
    std::unique_ptr<Node> makeNode(OutlineItem item, Node& parent) const;
    void forget(Node& node);
    void dropChildren(Node& node);
    static void renumber(Node& node, std::size_t from);
    QVariant cell(Node& node) const;

    std::weak_ptr<OutlineViewDataSource> _dataSource;
    std::weak_ptr<OutlineViewDelegate> _delegate;
    std::unique_ptr<Node> _root;
    mutable std::unordered_map<const Object*, Node*> _nodes; ///< by what they stand for
};

} // namespace brindle::desktop
