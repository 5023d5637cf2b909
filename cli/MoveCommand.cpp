#include "cli/MoveCommand.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "cli/BrowserSurface.hpp"
#include "cli/FeedNode.hpp"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace brindle {

namespace {

constexpr std::string_view topName = "top";

/// The entries in the order given. Each by its place before anything moves.
tl::expected<FeedsManager::Feeds, CommandError> namedFeeds(Library& library, const std::vector<std::string>& names) {
    FeedsManager::Feeds feeds;
    for (const std::string& name : names) {
        auto feed = library.feed(name);
        if (!feed)
            return tl::unexpected(std::move(feed.error()));
        feeds.push_back(*std::move(feed));
    }
    return feeds;
}

/// The row that the entries are dropped on.
tl::expected<OutlineItem, CommandError> targetRow(BrowserSurface& surface, const std::string& name) {
    if (name == topName)
        return surface.outline().groupOfKind(FeedsOutlineViewDataControllerCollectionGroup::Kind::feeds);
    auto feed = surface.library().feed(name);
    if (!feed)
        return tl::unexpected(std::move(feed.error()));
    return *std::move(feed);
}

/// Drags the entries onto the row, and lets go of them between its children or, at -1, on it. False: the outline refuses that.
bool drag(FeedsOutlineViewDataController& outline, const FeedsManager::Feeds& feeds, const OutlineItem& target, std::ptrdiff_t index) {
    Pasteboard pasteboard;
    for (const std::shared_ptr<Feed>& feed : feeds) {
        if (auto item = outline.pasteboardWriter(feed))
            pasteboard.items.push_back(*std::move(item));
    }
    outline.draggingSessionWillBegin({feeds.begin(), feeds.end()});
    const bool isDropped =
        outline.validateDrop(pasteboard, target, index) == DragOperation::move && outline.acceptDrop(pasteboard, target, index);
    outline.draggingSessionEnded();
    return isDropped;
}

CommandResult run(const CommandContext& context) {
    const Arguments& arguments = context.arguments;
    const auto to = arguments.value("to");
    if (!to || !arguments.has("index"))
        return wrongUsage("move: give --to and --index");
    const auto index = arguments.number("index", -1, std::numeric_limits<std::int32_t>::max(), -1);
    if (!index)
        return tl::unexpected(index.error());
    const auto surface = BrowserSurface::open(context.settings, Library::Purpose::writing);
    if (!surface)
        return tl::unexpected(surface.error());
    Library& library = (*surface)->library();
    const auto feeds = namedFeeds(library, arguments.plain);
    if (!feeds)
        return tl::unexpected(feeds.error());
    const auto target = targetRow(**surface, *to);
    if (!target)
        return tl::unexpected(target.error());
    const std::size_t count = (*surface)->outline().numberOfChildren(*target);
    const bool isSection = *to == topName || std::dynamic_pointer_cast<FeedGroup>(*target);
    if (isSection && *index > static_cast<std::int64_t>(count))
        return failure(*to + " has " + std::to_string(count) + " entries: nothing can be moved to place " + std::to_string(*index));
    if (!drag((*surface)->outline(), *feeds, *target, static_cast<std::ptrdiff_t>(*index)))
        return failure("these entries can't be moved to place " + std::to_string(*index) + " of " + *to);
    if (const auto saved = library.save(); !saved)
        return tl::unexpected(saved.error());
    const FeedsManager::Feeds& tree = library.manager().feeds;
    if (context.settings.json)
        context.output.json(feedNodes(tree));
    else
        context.output.text(feedOutline(tree));
    return ExitStatus::done;
}

} // namespace

Command moveCommand() {
    return {"move", "UUID… --to GROUP|top --index K",
        "Moves entries of the tree, by the rules of dragging them in the browser's outline, and saves. Prints the tree. A group or "
        "separator "
        "is named by its place in the tree: @2, @2.0.",
        {{"to", "GROUP", "the group that they come into; top: the top level"},
            {"index", "K", "the place before which they come, from 0, as it is before the move; -1: the end"}},
        1, Command::anyNumber, run};
}

} // namespace brindle
