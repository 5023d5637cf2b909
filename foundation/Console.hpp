#pragma once

#include <functional>
#include <string_view>

namespace brindle {

/// The program's console: whole lines, byte for byte, since they are behaviour. They go to standard output unless a program that needs
/// its standard output for results sends them elsewhere. Thread: any; lines never mix.
class Console {
public:
    using Sink = std::function<void(std::string_view line)>;

    /// Writes one line; `line` comes without its line end.
    static void print(std::string_view line);

    /// Sends all further lines to `sink` (given without line end, called under the console's lock), and back to standard output for an
    /// empty one.
    static void redirect(Sink sink);
};

} // namespace brindle
