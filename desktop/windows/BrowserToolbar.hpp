#pragma once

#include "Brindle/browser/FeedsBrowserWindowController.hpp"
#include "desktop/toolkit/StatusMenu.hpp"
#include "platform/ResponderChain.hpp"

#include <QWidget>
#include <memory>

class QHBoxLayout;
class QLineEdit;

namespace brindle::desktop {

/// The row above the panes of the browser: the status menu where the desktop has no place for it, buttons to add and remove feeds, and the
/// field to search in. Thread: main.
class BrowserToolbar : public QWidget {
public:
    /// The controller outlives a person's use of the row. `chain` takes what is chosen in the status menu.
    BrowserToolbar(FeedsBrowserWindowController& controller, const std::shared_ptr<StatusMenu>& statusMenu,
        const std::shared_ptr<ResponderChain>& chain, QWidget* parent);

    QLineEdit& searchField() const { return *_search; }
    /// Gives it the keyboard, with all of the term selected.
    void startSearch();
    /// Empties the field.
    void endSearch();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void addStatusMenu(QHBoxLayout& row, const std::shared_ptr<StatusMenu>& statusMenu, const std::shared_ptr<ResponderChain>& chain);
    void addSearchField(QHBoxLayout& row);

    FeedsBrowserWindowController& _controller;
    QLineEdit* _search = nullptr;
};

} // namespace brindle::desktop
