#include "cli/MenuNode.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/menu/ArticlePreview.hpp"
#include "cli/SingleLine.hpp"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;

std::shared_ptr<FeedItemArticle> articleOf(const MenuItem& item) {
    return std::dynamic_pointer_cast<FeedItemArticle>(item.representedObject());
}

/// Calls `visit` with every item of `menu` and below it, one before those of its submenu, and its depth. What stands below an article is
/// no item but a preview.
template <typename Visitor>
void forEachItem(Menu& menu, const ResponderChain& chain, Visitor visit) {
    menu.update(chain);
    std::vector<std::pair<Menu*, std::size_t>> open = {{&menu, 0}};
    while (!open.empty()) {
        auto& [items, next] = open.back();
        if (next == items->items().size()) {
            open.pop_back();
            continue;
        }
        MenuItem& item = *items->items()[next++];
        visit(item, open.size() - 1);
        if (item.hasSubmenu() && !articleOf(item)) {
            Menu& submenu = *item.submenu();
            submenu.update(chain);
            open.emplace_back(&submenu, 0);
        }
    }
}

JSON representedText(const MenuItem& item) {
    const auto object = item.representedObject();
    if (const auto article = std::dynamic_pointer_cast<FeedItemArticle>(object))
        return "article:" + article->articleStateKey();
    if (const auto feed = std::dynamic_pointer_cast<FeedItem>(object))
        return "feed:" + feed->uuid.uuidString();
    if (const auto group = std::dynamic_pointer_cast<FeedGroup>(object))
        return "group:" + group->name();
    return nullptr;
}

JSON imageName(const std::optional<Image>& image) {
    if (!image)
        return nullptr;
    switch (image->kind()) {
    case Image::Kind::named:
        return image->name();
    case Image::Kind::defaultFeedIcon:
        return "feed";
    case Image::Kind::data:
        break;
    }
    return "data";
}

JSON styleJSON(const TextStyle* style) {
    JSON json = JSON::object();
    json["bold"] = style && style->bold;
    json["color"] = style && style->color ? JSON(style->color->hexString()) : JSON();
    return json;
}

JSON submenuJSON(const MenuItem& item) {
    if (!item.hasSubmenu())
        return nullptr;
    JSON array = JSON::array();
    if (const auto article = articleOf(item)) {
        JSON preview = JSON::object();
        preview["preview"] = previewText(*article);
        array.push_back(std::move(preview));
    }
    return array;
}

JSON itemJSON(const MenuItem& item) {
    JSON json = JSON::object();
    json["title"] = item.title();
    json["separator"] = item.isSeparator();
    json["enabled"] = item.isEnabled();
    json["state"] = item.state();
    json["action"] = item.action().empty() ? JSON() : JSON(item.action());
    json["represents"] = representedText(item);
    json["image"] = imageName(item.image());
    json["style"] = styleJSON(item.style().get());
    json["submenu"] = submenuJSON(item);
    return json;
}

} // namespace

JSON menuNodes(Menu& menu, const ResponderChain& chain) {
    JSON nodes = JSON::array();
    // The arrays that are being filled, by depth: nothing is put beside an item before all is below it, so they stay where they are.
    std::vector<JSON*> open = {&nodes};
    forEachItem(menu, chain, [&](const MenuItem& item, std::size_t depth) {
        open.resize(depth + 1);
        open.back()->push_back(itemJSON(item));
        open.push_back(&open.back()->back()["submenu"]);
    });
    return nodes;
}

std::string menuOutline(Menu& menu, const ResponderChain& chain) {
    constexpr std::size_t deepestIndentation = 32;
    std::string text;
    forEachItem(menu, chain, [&](const MenuItem& item, std::size_t depth) {
        text.append(2 * std::min(depth, deepestIndentation), ' ');
        if (item.isSeparator())
            text += "--------";
        else
            text += (item.state() ? "[x] " : "") + singleLine(item.title()) + (item.isEnabled() ? "" : " (disabled)");
        text += '\n';
    });
    return text;
}

} // namespace brindle
