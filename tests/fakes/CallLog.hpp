#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brindle {

/// What several fakes write to, so that their calls can be told in one order.
using CallLog = std::shared_ptr<std::vector<std::string>>;

inline CallLog makeCallLog() {
    return std::make_shared<std::vector<std::string>>();
}

/// The calls since the last time.
inline std::vector<std::string> takeCalls(const CallLog& log) {
    return std::exchange(*log, {});
}

} // namespace brindle
