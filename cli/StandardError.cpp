#include "cli/StandardError.hpp"

#include "cli/SingleLine.hpp"
#include "foundation/WriteAll.hpp"

#include <string>
#include <unistd.h>

namespace brindle {

namespace {

/// Back to the line's start, and all of it blank.
constexpr std::string_view clearLine = "\r\x1b[K";

/// A message that can't be written has nowhere else to go.
void write(std::string_view text) {
    static_cast<void>(writeAll(STDERR_FILENO, text));
}

} // namespace

StandardError::StandardError() : _isTerminal(::isatty(STDERR_FILENO) == 1) {}

void StandardError::line(std::string_view text) {
    std::string output(_showsProgress.exchange(false) ? clearLine : "");
    output += text;
    output += '\n';
    write(output);
}

void StandardError::message(std::string_view text) {
    line("brindle-cli: " + singleLine(text));
}

void StandardError::progress(std::string_view text) {
    if (!_isTerminal)
        return;
    _showsProgress = true;
    write(std::string(clearLine) + std::string(text));
}

void StandardError::endProgress() {
    if (_showsProgress.exchange(false))
        write(clearLine);
}

} // namespace brindle
