#include "cli/SavedArticleCommands.hpp"

#include "Brindle/library/SavedArticlesManager.hpp"
#include "cli/ArticleList.hpp"
#include "cli/Library.hpp"
#include "cli/TextTable.hpp"
#include "foundation/FileManager.hpp"

#include <algorithm>
#include <memory>
#include <string>

namespace brindle {

namespace {

/// The articles as `saved` prints them: with what `unkeep` takes.
CommandResult print(const CommandContext& context, const Articles& articles) {
    auto array = nlohmann::ordered_json::array();
    TextTable table({"Title", "Address", "Identifier"});
    for (const std::shared_ptr<FeedItemArticle>& article : articles) {
        auto json = articleJSON(*article);
        const auto url = article->entry->preferredLinkURL();
        const std::string identifier = article->entry->effectiveIdentifier();
        table.add({article->entry->title, url ? url->absoluteString() : std::string(), identifier});
        json["identifier"] = identifier;
        array.push_back(std::move(json));
    }
    if (context.settings.json)
        context.output.json(array);
    else
        context.output.text(table.text());
    return ExitStatus::done;
}

SavedArticlesManager savedArticlesOf(Library& library) {
    return {library.manager().supportDirectory(), library.manager().environment()};
}

/// Loads what is saved for a change of it: a file that can't be read is no reason to replace it.
tl::expected<void, CommandError> loadForWriting(SavedArticlesManager& saved) {
    if (!saved.load() && FileManager::fileExists(saved.file()))
        return failure("the saved articles in " + saved.file().string() + " can't be read");
    return {};
}

tl::expected<void, CommandError> stored(const SavedArticlesManager& saved, bool isStored) {
    // The console says why.
    if (!isStored)
        return failure("the saved articles in " + saved.file().string() + " could not be stored");
    return {};
}

CommandResult keep(const CommandContext& context) {
    const auto name = context.arguments.value("feed");
    const auto key = context.arguments.value("key");
    if (!name || !key)
        return wrongUsage("keep: give --feed and --key");
    const auto library = Library::open(context.settings, Library::Purpose::writing, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    const auto feed = (*library)->feed(*name);
    if (!feed)
        return tl::unexpected(feed.error());
    (*library)->bringBack({*feed});
    const Articles articles = (*library)->manager().articles(ArticleStateFilter::any, *feed);
    const auto found =
        std::find_if(articles.begin(), articles.end(), [&](const auto& article) { return article->articleStateKey() == *key; });
    if (found == articles.end())
        return failure("no article of the feed has the key '" + *key + "'");
    SavedArticlesManager saved = savedArticlesOf(**library);
    if (const auto loaded = loadForWriting(saved); !loaded)
        return tl::unexpected(loaded.error());
    if (const auto done = stored(saved, saved.saveArticle(*found)); !done)
        return tl::unexpected(done.error());
    return print(context, {*found});
}

CommandResult unkeep(const CommandContext& context) {
    const auto identifier = context.arguments.value("id");
    if (!identifier)
        return wrongUsage("unkeep: give --id");
    const auto library = Library::open(context.settings, Library::Purpose::writing, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    SavedArticlesManager saved = savedArticlesOf(**library);
    if (const auto loaded = loadForWriting(saved); !loaded)
        return tl::unexpected(loaded.error());
    const auto found = std::find_if(saved.savedArticles.begin(), saved.savedArticles.end(),
        [&](const auto& article) { return article->entry->effectiveIdentifier() == *identifier; });
    if (found == saved.savedArticles.end())
        return failure("no saved article has the identifier '" + *identifier + "'");
    const std::shared_ptr<FeedItemArticle> article = *found;
    if (const auto done = stored(saved, saved.unsaveArticle(*article)); !done)
        return tl::unexpected(done.error());
    if (saved.savedArticles.empty())
        context.standardError.message("an empty list is not stored: the article that was removed last comes back with the next start");
    return print(context, {article});
}

CommandResult saved(const CommandContext& context) {
    const auto library = Library::open(context.settings, Library::Purpose::reading, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    SavedArticlesManager saved = savedArticlesOf(**library);
    saved.load();
    return print(context, saved.savedArticles);
}

} // namespace

Command keepCommand() {
    return {"keep", "--feed UUID --key KEY", "Saves an article, so that it stays when its feed drops it.",
        {{"feed", "UUID", "the feed, or the group of feeds, that the article is in"}, {"key", "KEY", "the article's key"}}, 0, 0, keep};
}

Command unkeepCommand() {
    return {"unkeep", "--id IDENTIFIER", "Takes an article out of the saved ones.",
        {{"id", "IDENTIFIER", "the article's identifier, as saved prints it"}}, 0, 0, unkeep};
}

Command savedCommand() {
    return {"saved", "", "Lists the saved articles.", {}, 0, 0, saved};
}

} // namespace brindle
