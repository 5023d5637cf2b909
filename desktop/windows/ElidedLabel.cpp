#include "desktop/windows/ElidedLabel.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QPainter>

namespace brindle::desktop {

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect place = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width(), Qt::TextSingleLine);
    if (const QString whole = shown == text() ? QString() : toolTipText(text()); toolTip() != whole)
        setToolTip(whole);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(place, static_cast<int>(alignment()) | Qt::TextSingleLine, shown);
}

} // namespace brindle::desktop
