#pragma once

#include <QWidget>
#include <functional>

class QDialogButtonBox;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace brindle::desktop {

/// What a dialog holds: a content above "OK" and "Cancel", in the order of the desktop. Enter presses "OK" from wherever the keyboard is
/// but another button, Escape "Cancel". Thread: main.
class DialogPane : public QWidget {
public:
    /// What the two buttons do.
    struct Actions {
        std::function<void()> accept;
        std::function<void()> reject;
    };

    DialogPane(Actions actions, QWidget* parent);

    /// Where the content goes.
    QVBoxLayout& content() const { return *_content; }
    /// Where signs of what goes on go, beside the buttons.
    QHBoxLayout& status() const { return *_status; }
    /// What has the keyboard when the dialog is shown.
    void setFirstField(QWidget* field) { _firstField = field; }
    void focusFirstField();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QVBoxLayout* const _content;
    QHBoxLayout* const _status;
    QPushButton* _accept = nullptr;
    QPushButton* _reject = nullptr;
    QWidget* _firstField = nullptr;
};

} // namespace brindle::desktop
