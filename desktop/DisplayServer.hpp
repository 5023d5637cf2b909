#pragma once

#include <optional>
#include <string>

namespace brindle::desktop {

/// The server that the program's windows are shown by, which the toolkit can't do without: it ends the process where none answers. Thread:
/// main, before the application object is made.
namespace displayserver {

/// Which of the toolkit's platforms can be used; empty: the toolkit's own choice. Absent where no server answers. Of those that
/// the environment names (QT_QPA_PLATFORM) only the ones that need no such server are believed. Takes a connection, and gives it back.
std::optional<std::string> platform();

/// What to say where there is none: one sentence.
std::string refusal();

} // namespace displayserver
} // namespace brindle::desktop
