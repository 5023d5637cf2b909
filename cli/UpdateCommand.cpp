#include "cli/UpdateCommand.hpp"

#include "cli/AnnouncedEvents.hpp"
#include "cli/Library.hpp"
#include "cli/PreferenceStore.hpp"
#include "cli/TextTable.hpp"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;
using Items = std::vector<std::shared_ptr<FeedItem>>;

constexpr std::int64_t defaultTimeout = 120;                                 ///< seconds
constexpr std::int64_t longestTimeout = std::int64_t{100} * 365 * 24 * 3600; ///< seconds

/// The items to fetch, in tree order: all, or those that the command line names.
tl::expected<Items, CommandError> chosenItems(Library& library, const std::vector<std::string>& names) {
    Items items = FeedsManager::items(library.manager().feeds);
    if (names.empty())
        return items;
    FeedsManager::Feeds named;
    for (const std::string& name : names) {
        auto feed = library.feed(name);
        if (!feed)
            return tl::unexpected(std::move(feed.error()));
        named.push_back(*std::move(feed));
    }
    const Items below = FeedsManager::items(named);
    const std::unordered_set<std::shared_ptr<FeedItem>> chosen(below.begin(), below.end());
    std::erase_if(items, [&](const std::shared_ptr<FeedItem>& item) { return !chosen.contains(item); });
    return items;
}

void fetch(Library& library, const Items& items, std::chrono::seconds limit, StandardError& standardError) {
    for (const std::shared_ptr<FeedItem>& item : items) {
        item->parse();
        library.answers().expect(*item);
    }
    library.answers().wait(limit, [&](std::size_t answered, std::size_t expected) {
        standardError.progress(std::to_string(answered) + " of " + std::to_string(expected) + " feeds");
    });
    standardError.endProgress();
}

/// Writes what the items report to the file that the command line names; null where it names none.
tl::expected<std::shared_ptr<AnnouncedEvents>, CommandError> openEvents(
    const CommandContext& context, const Library& library, const Items& items) {
    const auto file = context.arguments.value("events");
    if (!file)
        return nullptr;
    if (file->empty() || *file == "-")
        return wrongUsage("update: --events takes the name of a file");
    const auto defaults = openPreferences(context.settings);
    if (!defaults)
        return tl::unexpected(defaults.error());
    const auto log = EventLog::open(*file);
    if (!log)
        return tl::unexpected(log.error());
    const auto events = std::make_shared<AnnouncedEvents>(*log, library.sharedManager(), *defaults, library.sharedAnswers());
    for (const std::shared_ptr<FeedItem>& item : items)
        item->delegate = events;
    return events;
}

JSON answersJSON(const FeedAnswers& answers, const Items& items) {
    JSON array = JSON::array();
    for (const std::shared_ptr<FeedItem>& item : items) {
        const FeedAnswers::Answer answer = answers.answer(*item);
        JSON json = JSON::object();
        json["uuid"] = item->uuid.uuidString();
        json["name"] = item->name();
        json["url"] = item->url().absoluteString();
        json["outcome"] = name(answer.outcome);
        json["new"] = answer.newArticles;
        json["articles"] = item->articles().size();
        array.push_back(std::move(json));
    }
    return array;
}

std::string answersText(const FeedAnswers& answers, const Items& items) {
    TextTable table({"Outcome", "New", "Articles", "Name", "Address"});
    for (const std::shared_ptr<FeedItem>& item : items) {
        const FeedAnswers::Answer answer = answers.answer(*item);
        table.add({std::string(name(answer.outcome)), std::to_string(answer.newArticles), std::to_string(item->articles().size()),
            item->name(), item->url().absoluteString()});
    }
    return table.text();
}

CommandResult run(const CommandContext& context) {
    const auto timeout = context.arguments.number("timeout", 1, longestTimeout, defaultTimeout);
    if (!timeout)
        return tl::unexpected(timeout.error());
    const auto opened = Library::open(context.settings, Library::Purpose::writing, Library::network(context.arguments));
    if (!opened)
        return tl::unexpected(opened.error());
    Library& library = **opened;
    const auto items = chosenItems(library, context.arguments.values("feed"));
    if (!items)
        return tl::unexpected(items.error());
    const auto events = openEvents(context, library, *items);
    if (!events)
        return tl::unexpected(events.error());
    fetch(library, *items, std::chrono::seconds(*timeout), context.standardError);
    auto done = library.save();
    if (done && *events)
        done = (*events)->result();
    if (context.settings.json)
        context.output.json(answersJSON(library.answers(), *items));
    else
        context.output.text(answersText(library.answers(), *items));
    if (!done)
        return tl::unexpected(done.error());
    const bool allFinished = std::all_of(items->begin(), items->end(),
        [&](const std::shared_ptr<FeedItem>& item) { return library.answers().answer(*item).outcome == FeedAnswers::Outcome::finished; });
    return allFinished ? ExitStatus::done : ExitStatus::failed;
}

} // namespace

Command updateCommand() {
    return {"update", "[--timeout SECONDS] [--feed UUID]... [--no-icons] [--events FILE]",
        "Fetches every feed once, and saves. The exit status is 1 when one of them did not finish.",
        {{"timeout", "SECONDS", "how long to wait for all of them (default: 120)"},
            {"feed", "UUID", "fetch this feed, or all below this group; may be repeated"}, {"no-icons", "", "look for no icons"},
            {"events", "FILE", "write what the desktop program would announce, one JSON object a line"}},
        0, 0, run};
}

} // namespace brindle
