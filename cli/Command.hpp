#pragma once

#include "cli/ArgumentParser.hpp"
#include "cli/CommandResult.hpp"
#include "cli/Output.hpp"
#include "cli/Settings.hpp"
#include "cli/StandardError.hpp"

#include <cstddef>
#include <limits>
#include <string_view>
#include <vector>

namespace brindle {

/// What a command works with. Thread: main.
struct CommandContext {
    const Arguments& arguments; ///< the command's own; their number is checked
    const Settings& settings;
    Output& output;
    StandardError& standardError;
};

/// One command of the program: how it is called, and what it does. Thread: main.
struct Command {
    static constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

    std::string_view name;
    std::string_view synopsis; ///< its options and arguments, as in a usage line
    std::string_view help;     ///< one or more sentences, ending in a full stop
    std::vector<Option> options;
    std::size_t leastArguments = 0;
    std::size_t mostArguments = 0;
    CommandResult (*run)(const CommandContext& context) = nullptr;
};

} // namespace brindle
