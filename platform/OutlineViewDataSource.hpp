#pragma once

#include "foundation/Object.hpp"
#include "platform/Pasteboard.hpp"
#include "platform/TableCellView.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace brindle {

/// A row of an outline as an object of the program; null stands for the root.
using OutlineItem = std::shared_ptr<Object>;

/// What an outline shows, and what may be dropped on it. Thread: main.
class OutlineViewDataSource {
public:
    /// The index of a drop on a row itself, not between its children.
    static constexpr std::ptrdiff_t dropOnItemIndex = -1;

    virtual ~OutlineViewDataSource() = default;
    virtual std::size_t numberOfChildren(const OutlineItem& item) const = 0;
    /// `index` is below the number of children.
    virtual OutlineItem child(std::size_t index, const OutlineItem& item) const = 0;
    virtual bool isItemExpandable(const OutlineItem& item) const = 0;

    /// Absent for a row that can't be dragged.
    virtual std::optional<PasteboardItem> pasteboardWriter(const OutlineItem& item) const = 0;
    virtual void draggingSessionWillBegin(const std::vector<OutlineItem>& items) = 0;
    virtual void draggingSessionEnded() = 0;
    virtual DragOperation validateDrop(const Pasteboard& pasteboard, const OutlineItem& item, std::ptrdiff_t index) const = 0;
    /// Only after a validation of the same drop that allowed it; whether anything was done.
    virtual bool acceptDrop(const Pasteboard& pasteboard, const OutlineItem& item, std::ptrdiff_t index) = 0;
};

/// How an outline shows it. Thread: main.
class OutlineViewDelegate {
public:
    virtual ~OutlineViewDelegate() = default;
    virtual std::shared_ptr<TableCellView> viewFor(const OutlineItem& item) const = 0;
    virtual bool shouldExpandItem(const OutlineItem& item) const = 0;
    virtual bool isGroupItem(const OutlineItem& item) const = 0;
    /// In points.
    virtual double heightOfRow(const OutlineItem& item) const = 0;
    virtual bool shouldSelectItem(const OutlineItem& item) const = 0;
    virtual void outlineViewSelectionDidChange() = 0;
};

} // namespace brindle
