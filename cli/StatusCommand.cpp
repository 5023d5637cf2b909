#include "cli/StatusCommand.hpp"

#include "cli/MenuSurface.hpp"
#include "cli/TextTable.hpp"

namespace brindle {

namespace {

CommandResult run(const CommandContext& context) {
    const auto surface = MenuSurface::open(context.settings);
    if (!surface)
        return tl::unexpected(surface.error());
    (*surface)->update();
    const MenuSurface::Status& status = (*surface)->status();
    const bool isPaused = (*surface)->isPaused();
    if (!context.settings.json) {
        TextTable table({"Icon", "Title", "Badge", "Tooltip", "Paused"});
        table.add({status.icon, status.title, status.badge.value_or("-"), status.toolTip, isPaused ? "yes" : "no"});
        context.output.text(table.text());
        return ExitStatus::done;
    }
    nlohmann::ordered_json json = nlohmann::ordered_json::object();
    json["icon"] = status.icon;
    json["title"] = status.title;
    json["badge"] = status.badge ? nlohmann::ordered_json(*status.badge) : nlohmann::ordered_json();
    json["tooltip"] = status.toolTip;
    json["paused"] = isPaused;
    context.output.json(json);
    return ExitStatus::done;
}

} // namespace

Command statusCommand() {
    return {"status", "", "Prints what the status item and the dock show.", {}, 0, 0, run};
}

} // namespace brindle
