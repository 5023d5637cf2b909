#pragma once

#include "platform/DockTile.hpp"

namespace brindle::desktop {

/// Of a program that no launcher stands for. Thread: main.
class NoDockTile : public DockTile {
public:
    void setBadgeLabel(const std::optional<std::string>&) override {}
};

} // namespace brindle::desktop
