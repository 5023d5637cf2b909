#pragma once

#include "platform/MenuDelegate.hpp"

#include <string>
#include <vector>

namespace brindle {

/// Logs each call by its name.
class MenuDelegateFake : public MenuDelegate {
public:
    void menuWillOpen(Menu&) override { log.emplace_back("menuWillOpen"); }
    void menuDidClose(Menu&) override { log.emplace_back("menuDidClose"); }

    std::vector<std::string> log;
};

} // namespace brindle
