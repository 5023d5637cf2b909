#pragma once

#include "platform/OutlineViewDataSource.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace brindle {

/// Rows in a tree, of which those below expanded ones are shown. It asks for what it shows, and has to be told of every change. Thread:
/// main.
class OutlineView {
public:
    virtual ~OutlineView() = default;
    virtual void setDataSource(std::weak_ptr<OutlineViewDataSource> dataSource) = 0;
    virtual void setDelegate(std::weak_ptr<OutlineViewDelegate> delegate) = 0;
    virtual void setAllowsMultipleSelection(bool allows) = 0;
    /// Whether a drag may begin upward and downward.
    virtual void setVerticalMotionCanBeginDrag(bool canBegin) = 0;
    virtual void registerForDraggedType(std::string_view type) = 0;
    /// The height of an ordinary row, in points.
    virtual double rowHeight() const = 0;

    /// Nothing is selected afterwards; the delegate is told where something was.
    virtual void reloadData() = 0;
    virtual void reloadItem(const OutlineItem& item, bool reloadChildren) = 0;
    virtual void expandItem(const OutlineItem& item) = 0;

    virtual void beginUpdates() = 0;
    virtual void endUpdates() = 0;
    virtual void insertItem(std::size_t index, const OutlineItem& parent) = 0;
    /// A row that goes is selected no more, nor is any other in its place; the delegate is told where it, or one below it, was.
    virtual void removeItem(std::size_t index, const OutlineItem& parent) = 0;
    /// A row that moves stays selected, unless it moves out of sight; the delegate is told where it, or one below it, was.
    virtual void moveItem(std::size_t index, const OutlineItem& parent, std::size_t newIndex, const OutlineItem& newParent) = 0;

    /// In ascending order.
    virtual std::vector<std::size_t> selectedRows() const = 0;
    /// The row that was clicked last; absent where none was.
    virtual std::optional<std::size_t> clickedRow() const = 0;
    /// Null beyond the last row.
    virtual OutlineItem itemAtRow(std::size_t row) const = 0;
    /// Absent for an item that is not shown.
    virtual std::optional<std::size_t> rowForItem(const OutlineItem& item) const = 0;
    /// Also a row that a person can't select. The delegate is told of another selection as when a person makes it.
    virtual void selectRow(std::size_t row, bool byExtendingSelection) = 0;
    virtual void scrollRowToVisible(std::size_t row) = 0;
};

} // namespace brindle
