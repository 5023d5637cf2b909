#pragma once

#include "Brindle/shell/PreferencesEnvironment.hpp"
#include "Brindle/shell/PreferencesPane.hpp"
#include "platform/TabView.hpp"
#include "platform/Window.hpp"

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// The panes of the preferences behind their tabs. Comes back with the tab selected last, and fits the window to each. Thread: main.
class PreferencesTabViewController : public TabViewDelegate, public std::enable_shared_from_this<PreferencesTabViewController> {
public:
    /// By the index of the tab.
    enum class TabKind { general = 0, appearance, menu, feedsBrowser, collections, notifications };

    struct TabItem {
        std::string_view identifier; ///< stored
        std::string label;           ///< in the person's language
        std::shared_ptr<PreferencesPane> pane;
    };

    static std::shared_ptr<PreferencesTabViewController> make(const PreferencesEnvironment& environment, std::shared_ptr<Window> window);

    std::optional<TabKind> selectedTabKind; ///< what to open with; absent: what was selected last
    std::weak_ptr<TabView> tabView;

    const std::array<TabItem, 6>& tabViewItems() const { return _tabViewItems; }
    const std::map<std::size_t, Size>& tabViewSizes() const { return _tabViewSizes; }

    void viewDidLoad();
    void viewWillAppear();
    void willSelectTab(std::size_t index) override;
    void didSelectTab(std::size_t index) override;

private:
    PreferencesTabViewController(const PreferencesEnvironment& environment, std::shared_ptr<Window> window);
    std::optional<std::size_t> tabToSelect() const;
    void resizeWindow(std::size_t index);

    const std::shared_ptr<UserDefaults> _defaults;
    const std::shared_ptr<Window> _window;
    const std::array<TabItem, 6> _tabViewItems;
    std::map<std::size_t, Size> _tabViewSizes; ///< as designed: taken when a tab is first seen
};

} // namespace brindle
