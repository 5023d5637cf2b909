#pragma once

#include <atomic>
#include <string_view>

namespace brindle {

/// The program's standard error: console lines, error messages and, on a terminal only, one line of progress below them. Each is one write,
/// so that lines of several threads never mix. Thread: any.
class StandardError {
public:
    StandardError();

    void line(std::string_view text);
    /// "brindle-cli: " and the message, on one line.
    void message(std::string_view text);
    /// Replaces the line of progress; nothing where standard error is no terminal.
    void progress(std::string_view text);
    /// Takes the line of progress away.
    void endProgress();

private:
    const bool _isTerminal;
    std::atomic<bool> _showsProgress = false;
};

} // namespace brindle
