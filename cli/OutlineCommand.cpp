#include "cli/OutlineCommand.hpp"

#include "cli/BrowserSurface.hpp"
#include "cli/OutlineNode.hpp"

namespace brindle {

namespace {

CommandResult run(const CommandContext& context) {
    const auto surface = BrowserSurface::open(context.settings, Library::Purpose::reading);
    if (!surface)
        return tl::unexpected(surface.error());
    const FeedsOutlineViewDataController& outline = (*surface)->outline();
    if (context.settings.json)
        context.output.json(outlineNodes(outline));
    else
        context.output.text(outlineText(outline));
    return ExitStatus::done;
}

} // namespace

Command outlineCommand() {
    return {"outline", "", "Prints the rows of the browser's outline: the collections and the feeds, with their counts.", {}, 0, 0, run};
}

} // namespace brindle
