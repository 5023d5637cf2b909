#pragma once

#include "cli/Command.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// Every command, in the order in which help lists them.
const std::vector<Command>& commandTable();

/// Null when there is none of that name.
const Command* findCommand(std::string_view name);

/// The program's help.
std::string programHelp();

/// A command's help.
std::string commandHelp(const Command& command);

} // namespace brindle
