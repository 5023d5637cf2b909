#pragma once

namespace brindle {

/// Brings what shows the library up to date. Thread: main.
class InterfaceRefresher {
public:
    virtual ~InterfaceRefresher() = default;
    virtual void refreshCollections() = 0;
    virtual void updateMenu() = 0;
};

} // namespace brindle
