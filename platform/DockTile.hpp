#pragma once

#include <optional>
#include <string>

namespace brindle {

/// The program's icon where the desktop lists running programs. Thread: main.
class DockTile {
public:
    virtual ~DockTile() = default;
    /// A short text on the icon; the empty text shows nothing, and absence takes the badge away.
    virtual void setBadgeLabel(const std::optional<std::string>& label) = 0;
};

} // namespace brindle
