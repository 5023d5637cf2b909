#pragma once

#include "platform/Size.hpp"

#include <cstddef>
#include <memory>
#include <optional>

namespace brindle {

/// Is told of a tab view. Thread: main.
class TabViewDelegate {
public:
    virtual ~TabViewDelegate() = default;
    virtual void willSelectTab(std::size_t index) = 0;
    virtual void didSelectTab(std::size_t index) = 0;
};

/// Views of which one is shown, each behind a tab. Thread: main.
class TabView {
public:
    virtual ~TabView() = default;
    virtual void setDelegate(std::weak_ptr<TabViewDelegate> delegate) = 0;
    /// Tells the delegate before and after, where another tab was selected.
    virtual void selectTab(std::size_t index) = 0;
    /// Absent while it has no tabs.
    virtual std::optional<std::size_t> selectedTab() const = 0;
    /// The present size of the view behind a tab, in points.
    virtual Size viewSize(std::size_t index) const = 0;
};

} // namespace brindle
