#pragma once

#include "foundation/URL.hpp"

namespace brindle {

/// The desktop as the place of other programs. Thread: main.
class Workspace {
public:
    virtual ~Workspace() = default;
    /// Opens an address in the program that the user has for it.
    virtual void openURL(const URL& url) = 0;
};

} // namespace brindle
