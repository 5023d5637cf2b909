#pragma once

#include "platform/OutlineView.hpp"
#include "tests/fakes/CallLog.hpp"

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace brindle {

/// Logs each call that changes it, with items by the names that a test gives them, and keeps which are expanded and selected.
class OutlineViewFake : public OutlineView {
public:
    explicit OutlineViewFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void setDataSource(std::weak_ptr<OutlineViewDataSource> newSource) override {
        log->emplace_back("setDataSource");
        dataSource = std::move(newSource);
    }
    void setDelegate(std::weak_ptr<OutlineViewDelegate> newDelegate) override {
        log->emplace_back("setDelegate");
        delegate = std::move(newDelegate);
    }
    void setAllowsMultipleSelection(bool allows) override { log->push_back("setAllowsMultipleSelection " + word(allows)); }
    void setVerticalMotionCanBeginDrag(bool canBegin) override { log->push_back("setVerticalMotionCanBeginDrag " + word(canBegin)); }
    void registerForDraggedType(std::string_view type) override { log->push_back("registerForDraggedType " + std::string(type)); }
    double rowHeight() const override { return 24; }

    void reloadData() override {
        log->emplace_back("reloadData");
        expanded.clear();
        select(nullptr);
    }
    void reloadItem(const OutlineItem& item, bool reloadChildren) override {
        log->push_back("reloadItem " + name(item) + (reloadChildren ? " with children" : ""));
    }
    void expandItem(const OutlineItem& item) override {
        log->push_back("expandItem " + name(item));
        expanded.insert(item);
    }
    void beginUpdates() override { log->emplace_back("beginUpdates"); }
    void endUpdates() override { log->emplace_back("endUpdates"); }
    void insertItem(std::size_t index, const OutlineItem& parent) override {
        log->push_back("insertItem " + std::to_string(index) + " in " + name(parent));
    }
    void removeItem(std::size_t index, const OutlineItem& parent) override {
        log->push_back("removeItem " + std::to_string(index) + " in " + name(parent));
        const OutlineItem item = _selected.lock();
        if (!item || !rowForItem(item))
            select(nullptr);
    }
    void moveItem(std::size_t index, const OutlineItem& parent, std::size_t newIndex, const OutlineItem& newParent) override {
        log->push_back(
            "moveItem " + std::to_string(index) + " in " + name(parent) + " to " + std::to_string(newIndex) + " in " + name(newParent));
    }

    std::vector<std::size_t> selectedRows() const override {
        const OutlineItem item = _selected.lock();
        const auto row = item ? rowForItem(item) : std::nullopt;
        return row ? std::vector<std::size_t>{*row} : std::vector<std::size_t>();
    }
    std::optional<std::size_t> clickedRow() const override { return clicked; }
    OutlineItem itemAtRow(std::size_t row) const override {
        const std::vector<OutlineItem> shown = rows();
        return row < shown.size() ? shown[row] : nullptr;
    }
    std::optional<std::size_t> rowForItem(const OutlineItem& item) const override {
        const std::vector<OutlineItem> shown = rows();
        const auto place = std::find(shown.begin(), shown.end(), item);
        return place == shown.end() ? std::nullopt : std::optional(static_cast<std::size_t>(place - shown.begin()));
    }
    void selectRow(std::size_t row, bool byExtendingSelection) override {
        log->push_back("selectRow " + name(itemAtRow(row)) + (byExtendingSelection ? " too" : ""));
        select(itemAtRow(row));
    }
    void scrollRowToVisible(std::size_t row) override { log->push_back("scrollRowToVisible " + name(itemAtRow(row))); }

    /// Selects an item's row as a person would; null selects nothing.
    void click(const OutlineItem& item) {
        clicked = item ? rowForItem(item) : std::nullopt;
        select(clicked ? item : nullptr);
    }

    /// All rows that are shown, from the top.
    std::vector<OutlineItem> rows() const {
        std::vector<OutlineItem> shown;
        const auto source = dataSource.lock();
        std::vector<std::pair<OutlineItem, std::size_t>> open = {{nullptr, 0}};
        while (source && !open.empty()) {
            auto& [parent, next] = open.back();
            if (next == source->numberOfChildren(parent)) {
                open.pop_back();
                continue;
            }
            shown.push_back(source->child(next++, parent));
            if (expanded.contains(shown.back()))
                open.emplace_back(shown.back(), 0);
        }
        return shown;
    }

    CallLog log;
    std::function<std::string(const OutlineItem&)> name = [](const OutlineItem&) { return std::string("item"); };
    std::weak_ptr<OutlineViewDataSource> dataSource;
    std::weak_ptr<OutlineViewDelegate> delegate;
    std::set<OutlineItem> expanded;
    std::optional<std::size_t> clicked;

private:
    /// Tells the delegate where that is another selection.
    void select(const OutlineItem& item) {
        const bool isOther = item ? item != _selected.lock() : _hasSelection;
        _hasSelection = item != nullptr;
        _selected = item;
        if (const auto receiver = delegate.lock(); receiver && isOther)
            receiver->outlineViewSelectionDidChange();
    }

    static std::string word(bool value) { return value ? "true" : "false"; }

    std::weak_ptr<Object> _selected; ///< by the item, so that it stays when rows move; not kept alive
    bool _hasSelection = false;
};

} // namespace brindle
