#include "Brindle/library/SavedArticlesManager.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"
#include "foundation/KeyedArchiver.hpp"
#include "foundation/KeyedUnarchiver.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace brindle {

namespace {

using Articles = std::vector<std::shared_ptr<FeedItemArticle>>;

constexpr std::string_view fileName = "Saved Articles.brindle";

KeyedUnarchiver unarchiver(const SyndicatedSessionEnvironment& environment) {
    KeyedUnarchiver unarchiver;
    unarchiver.setAllowsDictionaries(true);
    unarchiver.setClass(
        "FeedItemArticle", [&](const Decoder& decoder) { return FeedItemArticle::decode(decoder, environment.clock->now()); });
    // Each article holds a copy of its feed.
    unarchiver.setClass("FeedItem", [&](const Decoder& decoder) { return FeedItem::decode(decoder, environment); });
    return unarchiver;
}

/// None at all where any object is no article.
Articles articlesAmong(const std::vector<std::shared_ptr<Coding>>& objects) {
    Articles articles;
    for (const std::shared_ptr<Coding>& object : objects) {
        articles.push_back(std::dynamic_pointer_cast<FeedItemArticle>(object));
        if (!articles.back())
            return {};
    }
    return articles;
}

bool failed(const std::string& message) {
    Console::print(message);
    return false;
}

} // namespace

SavedArticlesManager::SavedArticlesManager(std::filesystem::path supportDirectory, SyndicatedSessionEnvironment environment)
    : _file(std::move(supportDirectory) / fileName), _environment(std::move(environment)) {}

bool SavedArticlesManager::load() {
    assertMainThread();
    const auto bytes = FileManager::contents(_file);
    if (!bytes)
        return failed("Could not load saved articles, error: " + bytes.error().message);
    const auto objects = unarchiver(_environment).unarchiveArray(*bytes);
    if (!objects)
        return failed("Could not unarchive saved articles, error: " + objects.error().message);
    if (!*objects)
        return false;
    const Articles articles = articlesAmong(**objects);
    savedArticles.insert(savedArticles.end(), articles.begin(), articles.end());
    return articles.size() == (*objects)->size();
}

bool SavedArticlesManager::save() {
    assertMainThread();
    // Kept as is: an empty list is not stored, so the last article that is unsaved comes back at the next launch.
    if (savedArticles.empty())
        return true;
    const auto bytes = KeyedArchiver::archivedData(std::vector<std::shared_ptr<const Coding>>(savedArticles.begin(), savedArticles.end()));
    if (!bytes)
        return failed("Could not convert saved articles to data, error: " + bytes.error().message);
    if (const auto written = FileManager::writeAtomically(_file, *bytes); !written)
        return failed("Could not write saved articles, error: " + written.error().message);
    return true;
}

bool SavedArticlesManager::saveArticle(const std::shared_ptr<FeedItemArticle>& article) {
    if (find(*article) != savedArticles.end())
        return true;
    savedArticles.push_back(article);
    return save();
}

bool SavedArticlesManager::unsaveArticle(const FeedItemArticle& article) {
    const auto place = find(article);
    if (place == savedArticles.end())
        return true;
    savedArticles.erase(place);
    return save();
}

Articles::const_iterator SavedArticlesManager::find(const FeedItemArticle& article) const {
    const std::string identifier = article.entry->effectiveIdentifier();
    return std::find_if(savedArticles.begin(), savedArticles.end(),
        [&](const std::shared_ptr<FeedItemArticle>& saved) { return saved->entry->effectiveIdentifier() == identifier; });
}

} // namespace brindle
