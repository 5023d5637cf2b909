#pragma once

#include "desktop/windows/OutlineTree.hpp"
#include "platform/OutlineView.hpp"

#include <QPointer>
#include <functional>

namespace brindle::desktop {

/// The outline view of the desktop. Where the data source changes without a word, it catches up by itself. The widget belongs to its
/// parent; without it, all of this does nothing. Thread: main.
class QtOutlineView : public OutlineView {
public:
    /// `accessibleName` tells what is listed.
    QtOutlineView(QWidget* parent, const QString& accessibleName);
    ~QtOutlineView() override;

    OutlineTree& widget() const { return *_tree; }
    std::function<void()> onDoubleAction; ///< a row, which is the clicked one then, was double-clicked

    void setDataSource(std::weak_ptr<OutlineViewDataSource> dataSource) override;
    void setDelegate(std::weak_ptr<OutlineViewDelegate> delegate) override;
    void setAllowsMultipleSelection(bool allows) override;
    void setVerticalMotionCanBeginDrag(bool canBegin) override;
    void registerForDraggedType(std::string_view type) override;
    double rowHeight() const override;

    void reloadData() override;
    void reloadItem(const OutlineItem& item, bool reloadChildren) override;
    void expandItem(const OutlineItem& item) override;

    /// Between the two the selection is not told, so that nobody is asked while the rows and what they stand for differ.
    void beginUpdates() override;
    void endUpdates() override;
    void insertItem(std::size_t index, const OutlineItem& parent) override;
    void removeItem(std::size_t index, const OutlineItem& parent) override;
    void moveItem(std::size_t index, const OutlineItem& parent, std::size_t newIndex, const OutlineItem& newParent) override;

    std::vector<std::size_t> selectedRows() const override;
    std::optional<std::size_t> clickedRow() const override;
    OutlineItem itemAtRow(std::size_t row) const override;
    std::optional<std::size_t> rowForItem(const OutlineItem& item) const override;
    void selectRow(std::size_t row, bool byExtendingSelection) override;
    void scrollRowToVisible(std::size_t row) override;

private:
    QModelIndex indexAtRow(std::size_t row) const;
    std::optional<std::size_t> rowOf(const QModelIndex& index) const;
    OutlineItem selectedItem() const;
    void selectionDidChange();
    void keepSelection(const std::function<void()>& change);
    void catchUp();
    bool isCurrentWithin(const QModelIndex& index) const;
    void deselectBelow(const QModelIndex& index);

    const QPointer<OutlineTree> _tree;
    std::weak_ptr<OutlineViewDelegate> _delegate;
    QPersistentModelIndex _clicked;
    OutlineItem _toldSelection; ///< null: none
    QMetaObject::Connection _sleep;
    QMetaObject::Connection _collapse;
    int _updates = 0;
};

} // namespace brindle::desktop
