#pragma once

#include "platform/RunningApplications.hpp"

namespace brindle {

/// The programs that a test sets.
class RunningApplicationsFake : public RunningApplications {
public:
    std::vector<std::optional<std::string>> bundleIdentifiers() const override { return running; }

    std::vector<std::optional<std::string>> running;
};

} // namespace brindle
