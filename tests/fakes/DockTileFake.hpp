#pragma once

#include "platform/DockTile.hpp"

#include <functional>
#include <vector>

namespace brindle {

/// Logs the labels.
class DockTileFake : public DockTile {
public:
    void setBadgeLabel(const std::optional<std::string>& label) override {
        labels.push_back(label);
        if (onSetBadgeLabel)
            onSetBadgeLabel();
    }

    std::vector<std::optional<std::string>> labels;
    std::function<void()> onSetBadgeLabel; ///< may be empty
};

} // namespace brindle
