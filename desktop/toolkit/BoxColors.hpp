#pragma once

#include <QObject>

class QWidget;

namespace brindle::desktop {

/// Keeps the boxes of a widget, which are there to be ticked, lighter than what is behind them while the program is dark: styles draw the
/// frames of boxes darker still. Thread: main.
class BoxColors : public QObject {
public:
    /// For a widget that shows `QPalette::Base` in nothing but its boxes. Dies with it.
    static void apply(QWidget* widget);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    explicit BoxColors(QWidget* widget);
    void follow();

    QWidget* const _widget; ///< the parent
};

} // namespace brindle::desktop
