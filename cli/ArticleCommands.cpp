#include "cli/ArticleCommands.hpp"

#include "cli/ArticleList.hpp"
#include "cli/Library.hpp"
#include "foundation/Text.hpp"

#include <memory>
#include <optional>
#include <string>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;

constexpr Option feedOption = {"feed", "UUID", "of this feed, or of all feeds below this group, alone"};

CommandResult print(const CommandContext& context, const Articles& articles) {
    if (context.settings.json)
        context.output.json(articlesJSON(articles));
    else
        context.output.text(articleTable(articles));
    return ExitStatus::done;
}

std::optional<ArticleStateFilter> stateFilter(std::string_view text) {
    for (const ArticleStateFilter filter : {ArticleStateFilter::unread, ArticleStateFilter::read, ArticleStateFilter::any}) {
        if (name(filter) == text)
            return filter;
    }
    return std::nullopt;
}

CommandResult articles(const CommandContext& context) {
    const std::string state = context.arguments.value("state").value_or("any");
    const auto filter = stateFilter(state);
    if (!filter)
        return wrongUsage("articles: --state takes unread, read or any, not '" + state + "'");
    const auto library = Library::open(context.settings, Library::Purpose::reading, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    const auto feed = context.arguments.value("feed");
    const auto feeds = (*library)->feeds(feed);
    if (!feeds)
        return tl::unexpected(feeds.error());
    (*library)->bringBack(*feeds);
    return print(context, (*library)->manager().articles(*filter, feed ? feeds->front() : nullptr));
}

/// The articles whose title contains the term, case and diacritics aside; none for the empty term, which is no search.
Articles matches(const Articles& articles, std::string_view term) {
    const std::string wanted = text::folded(term);
    Articles found;
    for (const std::shared_ptr<FeedItemArticle>& article : articles) {
        if (!wanted.empty() && text::folded(article->entry->title).find(wanted) != std::string::npos)
            found.push_back(article);
    }
    return found;
}

CommandResult search(const CommandContext& context) {
    const auto library = Library::open(context.settings, Library::Purpose::reading, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    FeedsManager& manager = (*library)->manager();
    (*library)->bringBack(manager.feeds);
    return print(context, matches(manager.articles(ArticleStateFilter::any), context.arguments.plain.front()));
}

/// Marks the articles that have a key; how many changed, or an error where no article has it.
tl::expected<std::size_t, CommandError> markKey(const Articles& articles, const std::string& key, ArticleStateFilter state) {
    bool found = false;
    std::size_t changed = 0;
    for (const std::shared_ptr<FeedItemArticle>& article : articles) {
        const auto item = article->feedItem.lock();
        if (!item || article->articleStateKey() != key)
            continue;
        found = true;
        if (article->entry->isRead() == (state == ArticleStateFilter::read))
            continue;
        item->markArticle(*article, state);
        ++changed;
    }
    if (!found)
        return failure("no article has the key '" + key + "'");
    return changed;
}

CommandResult mark(const CommandContext& context) {
    const Arguments& arguments = context.arguments;
    const std::string& wanted = arguments.plain.front();
    const auto state = stateFilter(wanted);
    if (!state || state == ArticleStateFilter::any)
        return wrongUsage("mark takes read or unread, not '" + wanted + "'");
    const auto library = Library::open(context.settings, Library::Purpose::writing, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    const auto feeds = (*library)->feeds(arguments.value("feed"));
    if (!feeds)
        return tl::unexpected(feeds.error());
    (*library)->bringBack((*library)->manager().feeds);
    const auto feed = arguments.has("feed") ? feeds->front() : nullptr;
    FeedsManager& manager = (*library)->manager();
    tl::expected<std::size_t, CommandError> changed = 0;
    if (const auto key = arguments.value("key"))
        changed = markKey(manager.articles(ArticleStateFilter::any, feed), *key, *state);
    else
        changed = manager.markArticles(*state, feed);
    if (!changed)
        return tl::unexpected(changed.error());
    if (const auto saved = (*library)->save(); !saved)
        return tl::unexpected(saved.error());
    JSON json = JSON::object();
    json["changed"] = *changed;
    if (context.settings.json)
        context.output.json(json);
    else
        context.output.text(std::to_string(*changed) + " changed\n");
    return ExitStatus::done;
}

} // namespace

Command articlesCommand() {
    return {"articles", "[--state unread|read|any] [--feed UUID]", "Lists the articles of the library.",
        {{"state", "STATE", "unread, read or any (default)"}, feedOption}, 0, 0, articles};
}

Command searchCommand() {
    return {"search", "TERM", "Lists the articles whose title contains a term, case and diacritics aside.", {}, 1, 1, search};
}

Command markCommand() {
    return {"mark", "read|unread [--feed UUID] [--key KEY]", "Marks all articles as read or unread, and saves.",
        {feedOption, {"key", "KEY", "the article of that key alone"}}, 1, 1, mark};
}

} // namespace brindle
