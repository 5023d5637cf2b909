#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// Notices from program to program. Thread: main.
class DistributedNotificationCenter {
public:
    virtual ~DistributedNotificationCenter() = default;
    /// `object` tells of whom the notice is.
    virtual void post(std::string_view name, const std::optional<std::string>& object) = 0;
};

} // namespace brindle
