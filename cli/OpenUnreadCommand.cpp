#include "cli/OpenUnreadCommand.hpp"

#include "Brindle/shell/OpenArticles.hpp"
#include "cli/Library.hpp"
#include "cli/PreferenceStore.hpp"

#include <memory>
#include <string>
#include <vector>

namespace brindle {

namespace {

void print(const CommandContext& context, bool asks, const std::vector<OpenedArticle>& articles) {
    if (!context.settings.json) {
        for (const OpenedArticle& opened : articles)
            context.output.document(opened.url.absoluteString());
        return;
    }
    nlohmann::ordered_json json = nlohmann::ordered_json::object();
    json["asks"] = asks;
    json["urls"] = nlohmann::ordered_json::array();
    for (const OpenedArticle& opened : articles)
        json["urls"].push_back(opened.url.absoluteString());
    context.output.json(json);
}

CommandResult run(const CommandContext& context) {
    if (!context.arguments.has("dry-run"))
        return wrongUsage("open-unread: give --dry-run, for a command opens no browser");
    const auto defaults = openPreferences(context.settings);
    if (!defaults)
        return tl::unexpected(defaults.error());
    const auto library = Library::open(context.settings, Library::Purpose::reading, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    std::shared_ptr<Feed> feed;
    if (const auto name = context.arguments.value("feed")) {
        const auto found = (*library)->feed(*name);
        if (!found)
            return tl::unexpected(found.error());
        feed = *found;
    }
    (*library)->bringBack(feed ? FeedsManager::Feeds{feed} : (*library)->manager().feeds);
    const auto articles = (*library)->manager().articles(ArticleStateFilter::unread, feed);
    print(context, asksBeforeOpening(articles.size(), **defaults), openedArticles(articles));
    return ExitStatus::done;
}

} // namespace

Command openUnreadCommand() {
    return {"open-unread", "[--feed UUID] --dry-run",
        "Prints the addresses that opening all unread articles would open, and whether a person would be asked before. Nothing is opened "
        "or marked.",
        {{"feed", "UUID", "only the articles of this feed or group"}, {"dry-run", "", "only print; without it nothing is done"}}, 0, 0,
        run};
}

} // namespace brindle
