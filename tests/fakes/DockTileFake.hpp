#pragma once

#include "platform/DockTile.hpp"

#include <vector>

namespace brindle {

/// Logs the labels.
class DockTileFake : public DockTile {
public:
    void setBadgeLabel(const std::optional<std::string>& label) override { labels.push_back(label); }

    std::vector<std::optional<std::string>> labels;
};

} // namespace brindle
