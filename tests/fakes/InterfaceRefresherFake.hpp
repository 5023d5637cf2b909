#pragma once

#include "Brindle/events/InterfaceRefresher.hpp"

#include <memory>
#include <string>
#include <vector>

namespace brindle {

/// Logs each call by its name, into a list that others may write to as well.
class InterfaceRefresherFake : public InterfaceRefresher {
public:
    void refreshCollections() override { log->emplace_back("refreshCollections"); }
    void updateMenu() override { log->emplace_back("updateMenu"); }

    std::shared_ptr<std::vector<std::string>> log = std::make_shared<std::vector<std::string>>();
};

} // namespace brindle
