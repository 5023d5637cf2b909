#pragma once

#include "foundation/Console.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace brindle::testsupport {

/// Collects the console's lines while it lives.
class CapturedConsole {
public:
    CapturedConsole() {
        Console::redirect([this](std::string_view line) { lines.emplace_back(line); });
    }
    ~CapturedConsole() { Console::redirect({}); }
    CapturedConsole(const CapturedConsole&) = delete;
    CapturedConsole& operator=(const CapturedConsole&) = delete;

    std::vector<std::string> lines;
};

} // namespace brindle::testsupport
