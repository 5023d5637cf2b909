#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brindle {

/// The programs that run on the desktop now. Thread: main.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;
    /// One for each program; absent for one that has no bundle identifier.
    virtual std::vector<std::optional<std::string>> bundleIdentifiers() const = 0;
};

} // namespace brindle
