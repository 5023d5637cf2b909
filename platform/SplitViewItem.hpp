#pragma once

#include "platform/Control.hpp"

namespace brindle {

/// One pane of a split view. Thread: main.
class SplitViewItem : public Control {
public:
    bool isCollapsed() const { return _isCollapsed; }
    void setCollapsed(bool isCollapsed) { set(_isCollapsed, isCollapsed); }

    /// Whether the pane may reach up behind the window's title.
    bool allowsFullHeightLayout() const { return _allowsFullHeightLayout; }
    void setAllowsFullHeightLayout(bool allows) { set(_allowsFullHeightLayout, allows); }

private:
    bool _isCollapsed = false;
    bool _allowsFullHeightLayout = false;
};

} // namespace brindle
