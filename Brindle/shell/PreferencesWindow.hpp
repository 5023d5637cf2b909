#pragma once

namespace brindle {

/// The window of the preferences. Thread: main.
class PreferencesWindow {
public:
    virtual ~PreferencesWindow() = default;
    /// Forgets which pane it is to open with.
    virtual void clearSelectedTabKind() = 0;
    virtual void show() = 0;
};

} // namespace brindle
