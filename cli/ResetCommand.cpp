#include "cli/ResetCommand.hpp"

#include "cli/Library.hpp"

#include <string>

namespace brindle {

namespace {

CommandResult run(const CommandContext& context) {
    const std::string& what = context.arguments.plain.front();
    if (what != "icons" && what != "caches")
        return wrongUsage("reset: '" + what + "' is neither icons nor caches");
    const auto library = Library::open(context.settings, Library::Purpose::writing, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    FeedsManager& manager = (*library)->manager();
    if (what == "caches") {
        manager.resetCaches();
    } else {
        manager.clearImages(manager.feeds);
        context.standardError.message("icons are cleared in memory only: the stored ones come back with the next start");
    }
    return ExitStatus::done;
}

} // namespace

Command resetCommand() {
    return {"reset", "icons|caches",
        "Lets go of what is kept of the feeds. With caches, the stored documents, read states and icons of all feeds are removed; the "
        "feeds "
        "stay. With icons, the icons are let go in memory only, as in the desktop program, and come back from their files.",
        {}, 1, 1, run};
}

} // namespace brindle
