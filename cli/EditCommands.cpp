#include "cli/EditCommands.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "cli/FeedNode.hpp"
#include "cli/Library.hpp"

#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <string>

namespace brindle {

namespace {

constexpr std::int64_t greatestRate = std::numeric_limits<std::int64_t>::max() / 60;
constexpr std::string_view emptyGroupName = "Name cannot be empty: Please provide a name to the group.";

void print(const CommandContext& context, const std::shared_ptr<Feed>& feed) {
    if (context.settings.json)
        context.output.json(feedNodes({feed}));
    else
        context.output.text(feedOutline({feed}));
}

/// Appends an entry to the top level and saves.
CommandResult append(const CommandContext& context, const std::shared_ptr<Feed>& feed) {
    const auto library = Library::open(context.settings, Library::Purpose::writing, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    FeedsManager& manager = (*library)->manager();
    manager.addFeed(feed, std::ssize(manager.feeds));
    if (const auto saved = (*library)->save(); !saved)
        return tl::unexpected(saved.error());
    print(context, feed);
    return ExitStatus::done;
}

CommandResult addGroup(const CommandContext& context) {
    const std::string& name = context.arguments.plain.front();
    return name.empty() ? CommandResult(failure(std::string(emptyGroupName))) : append(context, FeedGroup::make(name));
}

CommandResult addSeparator(const CommandContext& context) {
    return append(context, FeedSeparator::make());
}

/// Why these changes can't be made to an entry of that kind.
tl::expected<void, CommandError> checkChanges(const Arguments& arguments, Feed::Kind kind) {
    if (kind == Feed::Kind::separator)
        return wrongUsage("edit: a separator has neither name nor rate");
    if (kind == Feed::Kind::group && arguments.has("rate"))
        return wrongUsage("edit: a group has no rate");
    if (kind == Feed::Kind::group && arguments.value("name") == "")
        return failure(std::string(emptyGroupName));
    return {};
}

CommandResult edit(const CommandContext& context) {
    const Arguments& arguments = context.arguments;
    const auto rate = arguments.number("rate", 1, greatestRate, FeedItem::defaultUpdateRate);
    if (!rate)
        return tl::unexpected(rate.error());
    if (!arguments.has("name") && !arguments.has("rate"))
        return wrongUsage("edit: give --name or --rate");
    const auto library = Library::open(context.settings, Library::Purpose::writing, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    const auto feed = (*library)->feed(arguments.plain.front());
    if (!feed)
        return tl::unexpected(feed.error());
    if (const auto checked = checkChanges(arguments, (*feed)->kind); !checked)
        return tl::unexpected(checked.error());
    (*library)->bringBack({*feed});
    if (const auto name = arguments.value("name"))
        (*feed)->setName(*name);
    if (arguments.has("rate"))
        static_cast<FeedItem&>(**feed).updateRate = *rate;
    if (const auto saved = (*library)->save(); !saved)
        return tl::unexpected(saved.error());
    print(context, *feed);
    return ExitStatus::done;
}

CommandResult remove(const CommandContext& context) {
    const auto library = Library::open(context.settings, Library::Purpose::writing, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    const auto feed = (*library)->feed(context.arguments.plain.front());
    if (!feed)
        return tl::unexpected(feed.error());
    (*library)->bringBack({*feed});
    FeedsManager& manager = (*library)->manager();
    manager.removeFeed(*feed, (*feed)->parent.lock());
    if (const auto saved = (*library)->save(); !saved)
        return tl::unexpected(saved.error());
    if (manager.feeds.empty())
        context.standardError.message("an empty library is not stored: what was removed last comes back with the next start");
    print(context, *feed);
    return ExitStatus::done;
}

} // namespace

Command addGroupCommand() {
    return {"add-group", "NAME", "Adds a group at the end of the top level.", {}, 1, 1, addGroup};
}

Command addSeparatorCommand() {
    return {"add-separator", "", "Adds a separator at the end of the top level.", {}, 0, 0, addSeparator};
}

Command editCommand() {
    return {"edit", "UUID [--name N] [--rate MINUTES]",
        "Changes the name or the update rate of a feed, or the name of a group. A group is named by its place in the tree: @2, @2.0.",
        {{"name", "N", "the new name; empty: a feed's own title"}, {"rate", "MINUTES", "how often to update the feed"}}, 1, 1, edit};
}

Command removeCommand() {
    return {"remove", "UUID",
        "Takes an entry, with all below it, out of the library. A group or separator is named by its place in the tree: @2, @2.0.", {}, 1,
        1, remove};
}

} // namespace brindle
