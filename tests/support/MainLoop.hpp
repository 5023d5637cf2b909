#pragma once

#include "foundation/RunLoop.hpp"

#include <functional>

namespace brindle {

/// Runs the main loop until `condition` holds; false when it never does. The limit is there for a test that fails, not for one that passes.
inline bool runMainLoop(const std::function<bool()>& condition) {
    return RunLoop::main().runUntil(condition, std::chrono::seconds(60));
}

} // namespace brindle
