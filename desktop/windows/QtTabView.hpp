#pragma once

#include "platform/TabView.hpp"

#include <QTabBar>
#include <QWidget>
#include <memory>
#include <string>

class QStackedWidget;

namespace brindle::desktop {

/// A row of tabs above the view of the selected one. The widget belongs to its parent. Thread: main.
class QtTabView : public TabView {
public:
    explicit QtTabView(QWidget* parent);

    QWidget& widget() const { return *_widget; }
    QTabBar& bar() const { return *_bar; }
    /// Takes the view. The first tab is selected as soon as it is there, which nobody is told.
    void addTab(const std::string& label, QWidget* view);
    /// What the whole is larger than the view in it, in points.
    Size surroundings() const;

    void setDelegate(std::weak_ptr<TabViewDelegate> delegate) override { _delegate = std::move(delegate); }
    void selectTab(std::size_t index) override { _bar->setCurrentIndex(static_cast<int>(index)); }
    std::optional<std::size_t> selectedTab() const override;
    /// As large as each view needs, and as wide as the widest and the tabs.
    Size viewSize(std::size_t index) const override;

private:
    void select(int index);

    QWidget* const _widget;
    QTabBar* const _bar;
    QStackedWidget* const _views;
    std::weak_ptr<TabViewDelegate> _delegate;
};

} // namespace brindle::desktop
