#include "desktop/system/StatusIcon.hpp"

#include "desktop/toolkit/Images.hpp"
#include "desktop/toolkit/Text.hpp"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace brindle::desktop::statusicon {

namespace {

constexpr int pointsWide = 18; ///< what the images are drawn for

// Both of middle lightness: a contrast of three to one and more with white and with nearly black.
constexpr QColor unreadColor(217, 107, 31);
constexpr QColor plainColor(138, 138, 138);
constexpr QColor badgeColor(32, 36, 40);
constexpr QColor badgeEdgeColor(255, 255, 255);

/// The largest bold font whose text fits.
QFont badgeFont(const QString& text, QSize room) {
    QFont font;
    font.setBold(true);
    font.setStyleStrategy(QFont::PreferAntialias);
    for (int size = room.height(); size > 4; --size) {
        font.setPixelSize(size);
        const QRect letters = QFontMetrics(font).tightBoundingRect(text);
        if (letters.width() <= room.width() && letters.height() <= room.height())
            break;
    }
    return font;
}

void drawBadge(QPainter& painter, const QString& text, int side) {
    const int edge = std::max(1, side / 24);
    const int height = std::max(9, side * 11 / 20);
    const QFont font = badgeFont(text, QSize(side - 2 * edge, height - 4 * edge));
    const QRect letters = QFontMetrics(font).tightBoundingRect(text);
    const int width = std::clamp(letters.width() + 4 * edge, std::min(side, height), side);
    const QRect badge(side - width, side - height, width, height);
    QPainterPath outline;
    outline.addRoundedRect(badge, height / 4.0, height / 4.0);
    painter.fillPath(outline, badgeColor);
    painter.setFont(font);
    painter.setPen(badgeEdgeColor);
    // By whole pixels, so that strokes stay sharp.
    const QPoint letterPlace(badge.left() + (width - letters.width()) / 2, badge.top() + (height - letters.height()) / 2);
    painter.drawText(letterPlace - letters.topLeft(), text);
    QColor faint = badgeEdgeColor;
    faint.setAlpha(110);
    painter.setPen(QPen(faint, 1));
    painter.drawRoundedRect(QRectF(badge).adjusted(0.5, 0.5, -0.5, -0.5), height / 4.0, height / 4.0);
}

} // namespace

std::string shortNumber(std::string_view digits) {
    if (digits.size() <= 3)
        return std::string(digits);
    return digits.size() <= 5 ? std::string(digits.substr(0, digits.size() - 3)) + "k" : "99k";
}

QImage drawing(const Image& image, std::string_view title, int side) {
    const bool hasUnread = image.name().ends_with("_alt");
    QImage result = images::drawing(image, QSize(side, side), double(side) / pointsWide, hasUnread ? unreadColor : plainColor);
    if (title.empty())
        return result;
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBadge(painter, toQString(shortNumber(title)), side);
    return result;
}

} // namespace brindle::desktop::statusicon
