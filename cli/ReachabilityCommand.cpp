#include "cli/ReachabilityCommand.hpp"

#include "SyndicatedParser/NetworkRoute.hpp"
#include "SyndicatedParser/Reachability.hpp"
#include "cli/JSONText.hpp"
#include "foundation/DispatchQueue.hpp"
#include "foundation/RunLoop.hpp"

#include <chrono>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;
using Flags = std::optional<std::uint32_t>;

constexpr std::int64_t longestWatch = std::int64_t{100} * 365 * 24 * 3600; ///< seconds

std::string_view name(Reachability::Connection connection) {
    switch (connection) {
    case Reachability::Connection::none:
        return "none";
    case Reachability::Connection::unavailable:
        break;
    case Reachability::Connection::wifi:
        return "wifi";
    case Reachability::Connection::cellular:
        return "cellular";
    }
    return "unavailable";
}

std::string description(Flags flags) {
    return flags ? Reachability::description(*flags) : "unavailable flags";
}

JSON stateJSON(Flags flags) {
    JSON json = JSON::object();
    json["flags"] = flags ? JSON(*flags) : JSON();
    json["description"] = description(flags);
    json["connection"] = name(Reachability::connection(flags));
    return json;
}

std::string stateLine(Flags flags) {
    return description(flags) + ' ' + std::string(name(Reachability::connection(flags))) + '\n';
}

Flags presentFlags(NetworkRoute& route) {
    const auto flags = route.flags();
    return flags ? Flags(*flags) : std::nullopt;
}

/// Prints the present state and then each other one, as it comes.
CommandResult watch(const CommandContext& context, std::chrono::seconds duration) {
    const auto route = defaultNetworkRoute();
    Flags shown;
    const auto show = [&](Flags flags) {
        shown = flags;
        context.output.text(context.settings.json ? jsonLine(stateJSON(flags)) : stateLine(flags));
    };
    const auto watch = route->watch(DispatchQueue::main(), [&](std::uint32_t flags) {
        if (shown != flags)
            show(flags);
    });
    if (!watch)
        return failure("the default route can't be watched");
    show(presentFlags(*route));
    RunLoop::main().runUntil([&] { return context.output.failure().has_value(); }, duration);
    return ExitStatus::done;
}

CommandResult run(const CommandContext& context) {
    const Arguments& arguments = context.arguments;
    if (arguments.has("watch") && arguments.has("flags"))
        return wrongUsage("reachability: --watch and --flags exclude each other");
    const auto seconds = arguments.number("watch", 0, longestWatch, 0);
    const auto given = arguments.number("flags", 0, std::numeric_limits<std::uint32_t>::max(), 0);
    if (!seconds || !given)
        return tl::unexpected(seconds ? given.error() : seconds.error());
    if (arguments.has("watch"))
        return watch(context, std::chrono::seconds(*seconds));
    const Flags flags = arguments.has("flags") ? Flags(static_cast<std::uint32_t>(*given)) : presentFlags(*defaultNetworkRoute());
    if (context.settings.json)
        context.output.json(stateJSON(flags));
    else
        context.output.text(stateLine(flags));
    return ExitStatus::done;
}

} // namespace

Command reachabilityCommand() {
    return {"reachability", "[--flags NUMBER] [--watch SECONDS]",
        "Shows the state of the machine's default route. With --json, --watch prints one JSON object a line.",
        {{"flags", "NUMBER", "judge this flag word instead"}, {"watch", "SECONDS", "go on for that long and print each change"}}, 0, 0,
        run};
}

} // namespace brindle
