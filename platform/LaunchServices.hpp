#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// The desktop's knowledge of which program opens which addresses. Programs are told by their bundle identifiers. Thread: main.
class LaunchServices {
public:
    virtual ~LaunchServices() = default;
    /// The program that opens addresses of a scheme; absent where there is none.
    virtual std::optional<std::string> defaultHandler(std::string_view scheme) const = 0;
    /// Failures are not told.
    virtual void setDefaultHandler(std::string_view scheme, const std::string& bundleIdentifier) = 0;
};

} // namespace brindle
