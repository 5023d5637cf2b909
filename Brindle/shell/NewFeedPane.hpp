#pragma once

#include "platform/View.hpp"
#include "platform/Window.hpp"

#include <memory>
#include <string>
#include <utility>

namespace brindle {

/// A pane of the window that adds and changes entries: fields, "OK" and "Cancel". Thread: main.
class NewFeedPane {
public:
    NewFeedPane() = default;
    NewFeedPane(const NewFeedPane&) = delete;
    NewFeedPane& operator=(const NewFeedPane&) = delete;
    virtual ~NewFeedPane() = default;

    std::shared_ptr<View> view;   ///< what shows the pane; may be null
    std::weak_ptr<Window> window; ///< where the pane is

    /// Of the pane and its window.
    const std::string& title() const { return _title; }

    /// Fills the fields; each time before the pane is shown.
    void viewWillAppear() {
        _isPresented = true;
        prepare();
    }
    virtual void handleOK() = 0;
    void handleCancel() {
        cancel();
        dismiss();
    }
    /// A person closed the window: that is a cancel. Nothing where the pane closed it.
    void windowWillClose() {
        if (std::exchange(_isPresented, false))
            cancel();
    }

protected:
    virtual void prepare() = 0;
    /// Undoes what the pane has begun.
    virtual void cancel() {}

    void setTitle(std::string title) {
        _title = std::move(title);
        if (const auto shown = window.lock())
            shown->setTitle(_title);
    }
    void dismiss() {
        _isPresented = false;
        if (const auto shown = window.lock())
            shown->close();
    }

private:
    std::string _title;
    bool _isPresented = false;
};

} // namespace brindle
