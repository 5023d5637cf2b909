#include "tests/browser/BrowserFixture.hpp"

#include "Brindle/shell/Preferences.hpp"
#include "foundation/Console.hpp"

#include <string_view>

namespace brindle {

BrowserTest::BrowserTest() {
    Console::redirect([](std::string_view) {});
    defaults = std::make_shared<UserDefaults>(folder / "Preferences.plist");
    registerDefaults(*defaults);
    const SyndicatedSessionEnvironment offline = {clock, absentNetworkRoute(), nullptr};
    manager = std::make_shared<FeedsManager>(folder.path(), offline, std::weak_ptr<FeedItemDelegate>());
    saved = std::make_shared<SavedArticlesManager>(folder.path(), offline);
    collections = std::make_shared<CollectionEntityManager>(manager, saved, defaults, clock);
    environment.feedsManager = manager;
    environment.savedArticlesManager = saved;
    environment.collectionEntityManager = collections;
    environment.defaults = defaults;
    environment.responderChain = std::make_shared<ResponderChain>(ResponderChain::Handlers{application});
    environment.alerts = alerts;
    environment.workspace = workspace;
    environment.resources = folder.path();
    environment.host = host;
}

BrowserTest::~BrowserTest() {
    // What ends with the library prints lines.
    environment = {};
    collections.reset();
    saved.reset();
    manager.reset();
    Console::redirect({});
}

std::shared_ptr<FeedItem> BrowserTest::makeItem(const std::string& name, const std::vector<std::string>& titles) {
    const auto item =
        FeedItem::make(name, URL::make("http://127.0.0.1/feed").value(), FeedItem::defaultUpdateRate, {}, {}, manager->environment());
    parse(*item, titles);
    return item;
}

void BrowserTest::parse(FeedItem& item, const std::vector<std::string>& titles) const {
    auto& entries = item.session().feed()->entries;
    entries.clear();
    for (const std::string& title : titles) {
        const auto& entry = entries.emplace_back(std::make_shared<SyndicatedEntry>(clock->now()));
        entry->title = title;
        entry->links.emplace_back().url = URL::make("http://a.test/" + title);
        entry->setContent(std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::raw, title + "!"));
    }
    item.syndicatedSessionDidFinishParsing(item.session());
}

std::vector<std::string> BrowserTest::names(const FeedsManager::Feeds& feeds) {
    std::vector<std::string> found;
    for (const auto& feed : feeds)
        found.push_back(feed->kind == Feed::Kind::separator ? "-" : feed->name());
    return found;
}

std::vector<std::string> BrowserTest::titles(const Articles& articles) {
    std::vector<std::string> found;
    for (const auto& article : articles)
        found.push_back(article->entry->title);
    return found;
}

} // namespace brindle
