#include "tests/cli/LibraryFolder.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/Console.hpp"

#include <memory>

namespace brindle {

std::string rssDocument(std::string_view feedTitle, const std::vector<std::string>& titles) {
    std::string text = "<rss><channel><title>" + std::string(feedTitle) + "</title>";
    for (const std::string& title : titles)
        text += "<item><title>" + title + "</title><link>http://a.test/" + title.substr(0, 1) +
                "</link><pubDate>Wed, 01 Jan 2020 00:00:00 GMT</pubDate></item>";
    return text + "</channel></rss>";
}

void LibraryFolderTest::SetUp() {
    Console::redirect([](std::string_view) {});
    const SyndicatedSessionEnvironment offline = {std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
    FeedsManager manager(supportFolder(), offline, {});
    const auto makeItem = [&](const char* name, const char* url, std::int64_t rate, std::string_view uuid, std::string data) {
        const auto item = FeedItem::make(name, *URL::make(url), rate, {}, {}, offline);
        item->uuid = *UUID::make(uuid);
        item->data = std::move(data);
        return item;
    };
    const auto group = FeedGroup::make("News");
    manager.addFeed(makeItem("One", "http://a.test/one", 20, first, rssDocument("First", {"Alpha", "B\u00e9ta"})), 0);
    manager.addFeed(group, 1);
    manager.addFeed(FeedSeparator::make(), 2);
    manager.addFeed(makeItem("", "http://a.test/two", 30, second, rssDocument("Second", {"Gamma"})), 0, group);
    manager.addFeed(FeedSeparator::make(), 1, group);
    manager.createSupportDirectories();
    manager.save();
}

std::string LibraryFolderTest::outline() {
    std::string text;
    const auto append = [&](const nlohmann::ordered_json& node) { text += node["kind"] == "separator" ? "-" : std::string(node["name"]); };
    for (const auto& node : runJSON({"list"})) {
        append(node);
        if (node.contains("children")) {
            text += '(';
            for (const auto& child : node["children"]) {
                append(child);
                text += ' ';
            }
            text += ')';
        }
        text += ' ';
    }
    return text;
}

std::vector<std::string> LibraryFolderTest::titles(const std::vector<std::string>& command) {
    std::vector<std::string> found;
    for (const auto& article : runJSON(command))
        found.push_back(article["title"]);
    return found;
}

} // namespace brindle
