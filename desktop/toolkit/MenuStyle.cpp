#include "desktop/toolkit/MenuStyle.hpp"

#include "desktop/toolkit/MenuView.hpp"
#include "desktop/toolkit/Palettes.hpp"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

namespace brindle::desktop {

namespace {

constexpr int markColumnWidth = 20;
constexpr int highlightEdge = 3;
constexpr qreal markSide = 10;
constexpr qreal markWidth = 1.6;

/// The item where it stands in a menu with marks; null elsewhere.
const QStyleOptionMenuItem* markedItem(const QStyleOption* option, const QWidget* widget) {
    const auto* const view = qobject_cast<const MenuView*>(widget);
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const bool isItem = item && (item->menuItemType == QStyleOptionMenuItem::Normal || item->menuItemType == QStyleOptionMenuItem::SubMenu);
    return isItem && view && view->hasMarkColumn() ? item : nullptr;
}

void drawMark(QPainter& painter, const QRect& column, const QColor& color) {
    const QPointF origin = QRectF(column).center() - QPointF(markSide / 2, markSide / 2);
    QPolygonF mark;
    for (const QPointF point : {QPointF(0.05, 0.55), QPointF(0.35, 0.85), QPointF(0.95, 0.15)})
        mark.append(origin + point * markSide);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, markWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(mark);
    painter.restore();
}

/// The toolkit's own separators are shadows, which nobody sees by dark.
bool isFaintSeparator(const QStyleOption* option) {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    return item && item->menuItemType == QStyleOptionMenuItem::Separator && item->text.isEmpty() && isDark(item->palette);
}

void drawSeparator(QPainter& painter, const QStyleOption& option) {
    constexpr int margin = 5;
    constexpr float faint = 0.22F;
    QColor color = option.palette.color(QPalette::Text);
    color.setAlphaF(faint);
    painter.fillRect(QRect(option.rect.left() + margin, option.rect.center().y(), option.rect.width() - 2 * margin, 1), color);
}

} // namespace

QStyle* MenuStyle::shared() {
    static QPointer<MenuStyle> style;
    if (!style) {
        style = new MenuStyle;
        style->setParent(qApp);
    }
    style->followApplication();
    return style;
}

/// The application has another style where it has colours of its own.
void MenuStyle::followApplication() {
    const QString name = QApplication::style()->name();
    if (baseStyle()->name() == name)
        return;
    if (QStyle* const followed = QStyleFactory::create(name))
        setBaseStyle(followed);
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    if (element == CE_MenuItem && isFaintSeparator(option))
        return drawSeparator(*painter, *option);
    const QStyleOptionMenuItem* const item = element == CE_MenuItem ? markedItem(option, widget) : nullptr;
    if (!item)
        return QProxyStyle::drawControl(element, option, painter, widget);
    // The highlight of the whole line, then the mark, then the rest of the line moved aside.
    QStyleOptionMenuItem line = *item;
    line.text.clear();
    line.icon = QIcon();
    line.menuItemType = QStyleOptionMenuItem::Normal;
    QProxyStyle::drawControl(element, &line, painter, widget);
    const QRect column = visualRect(item->direction, item->rect, QRect(item->rect.topLeft(), QSize(markColumnWidth, item->rect.height())));
    if (item->checked) {
        const bool isSelected = item->state & State_Selected;
        drawMark(*painter, column, item->palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    }
    QStyleOptionMenuItem rest = *item;
    const bool isMirrored = item->direction == Qt::RightToLeft;
    const QRect place = item->rect.adjusted(isMirrored ? 0 : markColumnWidth, 0, isMirrored ? -markColumnWidth : 0, 0);
    // The edge of its highlight would part the line.
    rest.rect = place.adjusted(isMirrored ? 0 : -highlightEdge, 0, isMirrored ? highlightEdge : 0, 0);
    painter->save();
    painter->setClipRect(place, Qt::IntersectClip);
    QProxyStyle::drawControl(element, &rest, painter, widget);
    painter->restore();
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const {
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_MenuItem && markedItem(option, widget))
        result.rwidth() += markColumnWidth;
    return result;
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const {
    return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace brindle::desktop
