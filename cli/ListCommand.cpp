#include "cli/ListCommand.hpp"

#include "cli/FeedNode.hpp"
#include "cli/Library.hpp"

namespace brindle {

namespace {

CommandResult run(const CommandContext& context) {
    const auto library = Library::open(context.settings, Library::Purpose::reading, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    const FeedsManager::Feeds& feeds = (*library)->manager().feeds;
    (*library)->bringBack(feeds);
    if (context.settings.json)
        context.output.json(feedNodes(feeds));
    else
        context.output.text(feedOutline(feeds));
    return ExitStatus::done;
}

} // namespace

Command listCommand() {
    return {"list", "", "Prints the tree of the library.", {}, 0, 0, run};
}

} // namespace brindle
