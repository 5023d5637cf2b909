#pragma once

#include "Brindle/shell/FeedsPickerViewController.hpp"
#include "desktop/windows/FeedsPickerTable.hpp"
#include "desktop/windows/QtWindow.hpp"

#include <functional>
#include <memory>

namespace brindle::desktop {

/// Asks which of a page's feeds a person wants, in front of the window that adds feeds. Thread: main.
class FeedsPickerWindow : public QtWindow {
    Q_OBJECT

public:
    /// Not yet shown. `owner` lives as long.
    static std::shared_ptr<FeedsPickerWindow> make(
        WindowEnvironment environment, std::shared_ptr<FeedsPickerViewController> controller, QWidget& owner);
    ~FeedsPickerWindow() override;

    std::function<void()> didHide; ///< called when it has left the screen, from its own event; may be empty

    QListWidget& list() const { return _table->widget(); }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    FeedsPickerWindow(WindowEnvironment environment, std::shared_ptr<FeedsPickerViewController> controller, QWidget& owner);

    const std::shared_ptr<FeedsPickerViewController> _controller;
    std::shared_ptr<FeedsPickerTable> _table;
};

} // namespace brindle::desktop
