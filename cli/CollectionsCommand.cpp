#include "cli/CollectionsCommand.hpp"

#include "Brindle/library/CollectionEntityManager.hpp"
#include "cli/ArticleList.hpp"
#include "cli/Library.hpp"
#include "cli/PreferenceStore.hpp"

#include <memory>
#include <string>

namespace brindle {

namespace {

CommandResult run(const CommandContext& context) {
    const auto defaults = openPreferences(context.settings);
    if (!defaults)
        return tl::unexpected(defaults.error());
    const auto library = Library::open(context.settings, Library::Purpose::reading, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    const std::shared_ptr<FeedsManager>& feedsManager = (*library)->sharedManager();
    (*library)->bringBack(feedsManager->feeds);
    const auto saved = std::make_shared<SavedArticlesManager>(feedsManager->supportDirectory(), feedsManager->environment());
    saved->load();
    // Made after all is loaded, each collection is complete, also one that the preferences show nowhere.
    const CollectionEntityManager manager(feedsManager, saved, *defaults, context.settings.clock);
    nlohmann::ordered_json json = nlohmann::ordered_json::object();
    std::string text;
    const auto add = [&](const char* key, const CollectionEntity<FeedItemArticle>& collection) {
        json[key] = articlesJSON(collection.entities());
        text += text.empty() ? "" : "\n";
        text += collection.name + " (" + std::to_string(collection.entities().size()) + ")\n";
        if (!collection.entities().empty())
            text += articleTable(collection.entities());
    };
    add("today", *manager.todayCollectionEntity);
    add("unread", *manager.unreadArticlesCollectionEntity);
    add("saved", *manager.savedArticlesCollectionEntity);
    if (context.settings.json)
        context.output.json(json);
    else
        context.output.text(text);
    return ExitStatus::done;
}

} // namespace

Command collectionsCommand() {
    return {"collections", "", "Lists the articles of today, the unread and the saved ones.", {}, 0, 0, run};
}

} // namespace brindle
