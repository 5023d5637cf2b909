#pragma once

#include <QLabel>

namespace brindle::desktop {

/// A line of plain text that gives way: what does not fit is shown by an ellipsis, and in whole as a tool tip. Thread: main.
class ElidedLabel : public QLabel {
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace brindle::desktop
