#pragma once

#include <string>

namespace brindle {

/// Programs that the desktop starts at login. Thread: main.
class LoginItem {
public:
    virtual ~LoginItem() = default;
    /// False on failure.
    [[nodiscard]] virtual bool setEnabled(const std::string& bundleIdentifier, bool isEnabled) = 0;
};

} // namespace brindle
