#pragma once

#include <string>
#include <tl/expected.hpp>
#include <utility>

namespace brindle {

/// What the program ends with.
enum class ExitStatus { done = 0, failed = 1, wrongUsage = 2 };

/// Why a command gave no result: its exit status and one line for people.
struct CommandError {
    ExitStatus status = ExitStatus::failed;
    std::string message;
};

/// How a command that printed its result ends.
using CommandResult = tl::expected<ExitStatus, CommandError>;

inline tl::unexpected<CommandError> failure(std::string message) {
    return tl::unexpected(CommandError{ExitStatus::failed, std::move(message)});
}

inline tl::unexpected<CommandError> wrongUsage(std::string message) {
    return tl::unexpected(CommandError{ExitStatus::wrongUsage, std::move(message)});
}

} // namespace brindle
