#include "tests/menu/MenuFixture.hpp"

#include "Brindle/shell/Preferences.hpp"
#include "foundation/Console.hpp"

#include <algorithm>
#include <utility>

namespace brindle {

std::string outline(Menu& menu) {
    std::string text;
    std::vector<std::pair<Menu*, std::size_t>> open = {{&menu, 0}};
    while (!open.empty()) {
        auto& [items, next] = open.back();
        if (next == items->items().size()) {
            open.pop_back();
            continue;
        }
        MenuItem& item = *items->items()[next++];
        text.append(2 * (open.size() - 1), ' ');
        if (item.isSeparator()) {
            text += "--------\n";
            continue;
        }
        text += (item.state() ? "[x] " : "") + item.title() + (item.isEnabled() ? "" : " (disabled)");
        text += item.action().empty() ? "\n" : " <" + std::string(item.action()) + ">\n";
        if (item.hasSubmenu() && item.action() != "showArticle:")
            open.emplace_back(item.submenu().get(), 0);
    }
    return text;
}

std::shared_ptr<MenuItem> itemAt(Menu& menu, const std::vector<std::string>& titles) {
    Menu* level = &menu;
    std::shared_ptr<MenuItem> found;
    for (const std::string& title : titles) {
        if (!level)
            return nullptr;
        const auto& items = level->items();
        const auto place = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item->title() == title; });
        if (place == items.end())
            return nullptr;
        found = *place;
        level = found->submenu().get();
    }
    return found;
}

MenuTest::MenuTest() {
    Console::redirect([this](std::string_view line) { _lines.emplace_back(line); });
    environment = {clock, absentNetworkRoute(), nullptr};
    defaults = std::make_shared<UserDefaults>(folder.path() / "Preferences.plist");
    registerDefaults(*defaults);
    manager = std::make_shared<FeedsManager>(folder.path(), environment, std::weak_ptr<FeedItemDelegate>());
}

MenuTest::~MenuTest() {
    manager.reset();
    Console::redirect({});
}

std::shared_ptr<FeedItem> MenuTest::makeItem(const std::string& name, const std::vector<std::string>& titles) {
    const auto item = FeedItem::make(name, URL::make("http://127.0.0.1/feed").value(), FeedItem::defaultUpdateRate, {}, {}, environment);
    parse(*item, titles);
    return item;
}

void MenuTest::parse(FeedItem& item, const std::vector<std::string>& titles) const {
    auto& entries = item.session().feed()->entries;
    entries.clear();
    for (const std::string& title : titles)
        entries.emplace_back(std::make_shared<SyndicatedEntry>(clock->now()))->title = title;
    item.syndicatedSessionDidFinishParsing(item.session());
}

void MenuTest::markRead(FeedItem& item, std::size_t index) {
    item.markArticle(*item.articles().at(index), ArticleStateFilter::read);
}

std::shared_ptr<MenuRebuild> MenuTest::rebuild() const {
    return std::make_shared<MenuRebuild>(*defaults, manager->feeds, applicationDelegate, previews);
}

std::vector<std::string> MenuTest::takeLines() {
    return std::exchange(_lines, {});
}

} // namespace brindle
