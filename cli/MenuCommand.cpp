#include "cli/MenuCommand.hpp"

#include "cli/MenuNode.hpp"
#include "cli/MenuSurface.hpp"

namespace brindle {

namespace {

CommandResult run(const CommandContext& context) {
    const auto surface = MenuSurface::open(context.settings);
    if (!surface)
        return tl::unexpected(surface.error());
    (*surface)->update();
    Menu& menu = (*surface)->menu();
    const ResponderChain& chain = (*surface)->responderChain();
    if (context.settings.json)
        context.output.json(menuNodes(menu, chain));
    else
        context.output.text(menuOutline(menu, chain));
    return ExitStatus::done;
}

} // namespace

Command menuCommand() {
    return {"menu", "", "Prints the status menu as the desktop program builds it.", {}, 0, 0, run};
}

} // namespace brindle
