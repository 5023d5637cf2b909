#pragma once

#include "platform/RunningApplications.hpp"

namespace brindle::desktop {

/// This desktop has no list of running programs by their identifiers, and the program that starts this one at login is the desktop itself:
/// none. Thread: main.
class NoRunningApplications : public RunningApplications {
public:
    std::vector<std::optional<std::string>> bundleIdentifiers() const override { return {}; }
};

} // namespace brindle::desktop
