#include "cli/FeedNode.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "cli/TextTable.hpp"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;

struct Counts {
    std::size_t articles = 0;
    std::size_t unread = 0;
};

/// An entry where it stands in the tree.
struct Row {
    std::shared_ptr<Feed> feed;
    std::size_t depth = 0;
    Counts counts;
};

std::vector<Row> rowsInOrder(const FeedsManager::Feeds& list) {
    std::vector<Row> rows;
    std::vector<std::pair<const FeedsManager::Feeds*, std::size_t>> open{{&list, 0}};
    while (!open.empty()) {
        auto& [feeds, next] = open.back();
        if (next == feeds->size()) {
            open.pop_back();
            continue;
        }
        const std::shared_ptr<Feed>& feed = (*feeds)[next++];
        rows.push_back({feed, open.size() - 1, {}});
        if (feed->kind == Feed::Kind::group)
            open.emplace_back(&static_cast<const FeedGroup&>(*feed).feeds(), 0);
    }
    return rows;
}

Counts countsOf(const FeedItem& item) {
    const auto& articles = item.articles();
    const auto read = std::count_if(articles.begin(), articles.end(), [](const auto& article) { return article->entry->isRead(); });
    return {articles.size(), articles.size() - static_cast<std::size_t>(read)};
}

/// The rows of a list and below it, a group before its children.
std::vector<Row> countedRows(const FeedsManager::Feeds& list) {
    std::vector<Row> rows = rowsInOrder(list);
    std::vector<Counts> sums; // by depth, of what stands behind and still waits for its group
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        sums.resize(std::max(sums.size(), row->depth + 2));
        if (row->feed->kind == Feed::Kind::item)
            row->counts = countsOf(static_cast<const FeedItem&>(*row->feed));
        else if (row->feed->kind == Feed::Kind::group)
            row->counts = std::exchange(sums[row->depth + 1], {});
        sums[row->depth].articles += row->counts.articles;
        sums[row->depth].unread += row->counts.unread;
    }
    return rows;
}

std::string_view kindName(Feed::Kind kind) {
    switch (kind) {
    case Feed::Kind::item:
        return "item";
    case Feed::Kind::group:
        return "group";
    case Feed::Kind::separator:
        break;
    }
    return "separator";
}

JSON nodeJSON(const Row& row) {
    JSON node = JSON::object();
    node["kind"] = kindName(row.feed->kind);
    node["name"] = row.feed->name();
    if (row.feed->kind == Feed::Kind::item) {
        const auto& item = static_cast<const FeedItem&>(*row.feed);
        node["uuid"] = item.uuid.uuidString();
        node["url"] = item.url().absoluteString();
        node["updateRate"] = item.updateRate;
    }
    node["articles"] = row.counts.articles;
    node["unread"] = row.counts.unread;
    if (row.feed->kind == Feed::Kind::group)
        node["children"] = JSON::array();
    return node;
}

} // namespace

JSON feedNodes(const FeedsManager::Feeds& list) {
    JSON nodes = JSON::array();
    // The arrays that are being filled, by depth: nothing is put beside a node before all is below it, so they stay where they are.
    std::vector<JSON*> open = {&nodes};
    for (const Row& row : countedRows(list)) {
        open.resize(row.depth + 1);
        open.back()->push_back(nodeJSON(row));
        if (row.feed->kind == Feed::Kind::group)
            open.push_back(&open.back()->back()["children"]);
    }
    return nodes;
}

std::string feedOutline(const FeedsManager::Feeds& list) {
    constexpr std::size_t deepestIndentation = 32;
    TextTable table({"Name", "Unread", "Articles", "Minutes", "UUID", "Address"});
    for (const Row& row : countedRows(list)) {
        const std::string indentation(2 * std::min(row.depth, deepestIndentation), ' ');
        const std::string unread = std::to_string(row.counts.unread);
        const std::string articles = std::to_string(row.counts.articles);
        if (row.feed->kind == Feed::Kind::separator) {
            table.add({indentation + "--------"});
        } else if (row.feed->kind == Feed::Kind::group) {
            table.add({indentation + row.feed->name() + '/', unread, articles});
        } else {
            const auto& item = static_cast<const FeedItem&>(*row.feed);
            const std::string name = item.name();
            table.add({indentation + (name.empty() ? "-" : name), unread, articles, std::to_string(item.updateRate), item.uuid.uuidString(),
                item.url().absoluteString()});
        }
    }
    return table.text();
}

} // namespace brindle
