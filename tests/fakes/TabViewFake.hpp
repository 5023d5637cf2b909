#pragma once

#include "platform/TabView.hpp"
#include "tests/fakes/CallLog.hpp"

#include <string>
#include <utility>

namespace brindle {

/// Logs what is selected, and tells its delegate as a real one does. The view behind a tab is as wide as 100 times the tab's number,
/// counted from 1, and grows by what a test sets.
class TabViewFake : public TabView {
public:
    explicit TabViewFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void setDelegate(std::weak_ptr<TabViewDelegate> newDelegate) override { delegate = std::move(newDelegate); }
    void selectTab(std::size_t index) override {
        log->push_back("selectTab " + std::to_string(index));
        if (index == selected)
            return;
        const auto told = delegate.lock();
        if (told)
            told->willSelectTab(index);
        selected = index;
        if (told)
            told->didSelectTab(index);
    }
    std::optional<std::size_t> selectedTab() const override { return selected; }
    Size viewSize(std::size_t index) const override { return {100.0 * static_cast<double>(index + 1) + growth, 50}; }

    CallLog log;
    std::weak_ptr<TabViewDelegate> delegate;
    std::size_t selected = 0;
    double growth = 0;
};

} // namespace brindle
