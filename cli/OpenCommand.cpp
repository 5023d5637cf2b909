#include "cli/OpenCommand.hpp"

#include "Brindle/shell/OpenFeedURL.hpp"
#include "cli/FeedNode.hpp"
#include "cli/Library.hpp"

#include <chrono>
#include <string>

namespace brindle {

namespace {

constexpr std::chrono::seconds timeLimit(120);

CommandResult run(const CommandContext& context) {
    const std::string& address = context.arguments.plain.front();
    const auto library = Library::open(context.settings, Library::Purpose::writing, Library::network(context.arguments));
    if (!library)
        return tl::unexpected(library.error());
    const auto feedItem = openFeedURL(address, (*library)->manager());
    if (!feedItem)
        return failure("'" + address + "' is no address of a feed");
    feedItem->invalidateTimer();
    (*library)->answers().expect(*feedItem);
    (*library)->answers().wait(timeLimit);
    if (const auto saved = (*library)->save(); !saved)
        return tl::unexpected(saved.error());
    if (context.settings.json)
        context.output.json(feedNodes({feedItem}));
    else
        context.output.text(feedOutline({feedItem}));
    return ExitStatus::done;
}

} // namespace

Command openCommand() {
    return {"open", "[--no-icons] ADDRESS",
        "Takes the feed at an address into the library, as a link in another program does. The address is an http, https or feed URL. The "
        "feed is fetched, and is added whatever comes of that, also where the library has it already.",
        {{"no-icons", "", "look for no icons"}}, 1, 1, run};
}

} // namespace brindle
