#include "cli/OutlineNode.hpp"

#include "Brindle/browser/CollectionEntityTableCellView.hpp"
#include "Brindle/browser/FeedTableCellView.hpp"
#include "Brindle/browser/GroupTableCellView.hpp"
#include "cli/SingleLine.hpp"
#include "foundation/Text.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;
using CollectionGroup = FeedsOutlineViewDataControllerCollectionGroup;
using CollectionItem = FeedsOutlineViewDataControllerCollectionItem;

/// A row where it stands, and what its cell shows.
struct Row {
    OutlineItem item;
    std::size_t depth = 0;
    bool isExpandable = false;
    std::string_view kind = {};
    std::string title = {};
    std::optional<std::int64_t> count = {};
};

std::string_view kindName(CollectionItem::Kind kind) {
    switch (kind) {
    case CollectionItem::Kind::today:
        return "today";
    case CollectionItem::Kind::unread:
        return "unread";
    case CollectionItem::Kind::saved:
        return "saved";
    case CollectionItem::Kind::feeds:
        return "feeds";
    case CollectionItem::Kind::separator:
        break;
    }
    return "separator";
}

std::string_view kindName(const OutlineItem& item) {
    if (const auto section = std::dynamic_pointer_cast<CollectionGroup>(item))
        return section->kind == CollectionGroup::Kind::collections ? "collections" : "feeds";
    if (const auto collectionItem = std::dynamic_pointer_cast<CollectionItem>(item))
        return kindName(collectionItem->kind);
    const auto feed = std::dynamic_pointer_cast<Feed>(item);
    if (feed && feed->kind == Feed::Kind::item)
        return "item";
    return feed && feed->kind == Feed::Kind::group ? "group" : "separator";
}

void fill(Row& row, const FeedsOutlineViewDataController& outline) {
    row.kind = kindName(row.item);
    row.isExpandable = outline.isItemExpandable(row.item);
    // A group's cell would count all below it once more for each group around it.
    if (const auto group = std::dynamic_pointer_cast<FeedGroup>(row.item)) {
        row.title = group->name();
        row.count = 0;
        return;
    }
    const auto cell = outline.viewFor(row.item);
    if (const auto header = std::dynamic_pointer_cast<GroupTableCellView>(cell)) {
        row.title = header->nameTextField.stringValue();
    } else if (const auto collection = std::dynamic_pointer_cast<CollectionEntityTableCellView>(cell)) {
        row.title = collection->nameTextField.stringValue();
        row.count = text::lenientInteger(collection->counterTextField.stringValue());
    } else if (const auto feed = std::dynamic_pointer_cast<FeedTableCellView>(cell)) {
        row.title = feed->nameTextField.stringValue();
        row.count = text::lenientInteger(feed->counterTextField.stringValue());
    }
}

/// All rows, one before those below it, without the counts of the groups.
std::vector<Row> rowsInOrder(const FeedsOutlineViewDataController& outline) {
    std::vector<Row> rows;
    std::vector<std::pair<OutlineItem, std::size_t>> open = {{nullptr, 0}};
    while (!open.empty()) {
        auto& [parent, next] = open.back();
        if (next == outline.numberOfChildren(parent)) {
            open.pop_back();
            continue;
        }
        Row row{outline.child(next++, parent), open.size() - 1};
        fill(row, outline);
        rows.push_back(row);
        if (row.isExpandable)
            open.emplace_back(row.item, 0);
    }
    return rows;
}

/// The same with the counts of the groups, which are the sums of what is below them.
std::vector<Row> countedRows(const FeedsOutlineViewDataController& outline) {
    std::vector<Row> rows = rowsInOrder(outline);
    std::vector<std::int64_t> sums; // by depth, of what stands behind and still waits for its group
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        sums.resize(std::max(sums.size(), row->depth + 2));
        const std::int64_t below = row->isExpandable ? std::exchange(sums[row->depth + 1], 0) : 0;
        if (row->kind == "group")
            row->count = below;
        sums[row->depth] += row->count.value_or(0);
    }
    return rows;
}

JSON nodeJSON(const Row& row) {
    JSON node = JSON::object();
    node["kind"] = row.kind;
    node["title"] = row.title;
    node["count"] = row.count ? JSON(*row.count) : JSON();
    if (row.isExpandable)
        node["children"] = JSON::array();
    return node;
}

} // namespace

JSON outlineNodes(const FeedsOutlineViewDataController& outline) {
    JSON nodes = JSON::array();
    // The arrays that are being filled, by depth: nothing is put beside a row before all is below it, so they stay where they are.
    std::vector<JSON*> open = {&nodes};
    for (const Row& row : countedRows(outline)) {
        open.resize(row.depth + 1);
        open.back()->push_back(nodeJSON(row));
        if (row.isExpandable)
            open.push_back(&open.back()->back()["children"]);
    }
    return nodes;
}

std::string outlineText(const FeedsOutlineViewDataController& outline) {
    constexpr std::size_t deepestIndentation = 32;
    std::string text;
    for (const Row& row : countedRows(outline)) {
        text.append(2 * std::min(row.depth, deepestIndentation), ' ');
        text += row.kind == "separator" ? "--------" : singleLine(row.title);
        if (row.count && *row.count != 0)
            text += " (" + std::to_string(*row.count) + ")";
        text += '\n';
    }
    return text;
}

} // namespace brindle
