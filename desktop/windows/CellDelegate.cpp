#include "desktop/windows/CellDelegate.hpp"

#include "Brindle/browser/CollectionEntityTableCellView.hpp"
#include "Brindle/browser/FeedTableCellView.hpp"
#include "Brindle/browser/SeparatorTableCellView.hpp"
#include "desktop/toolkit/Images.hpp"
#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/CellRole.hpp"

#include <QApplication>
#include <QPainter>
#include <algorithm>

namespace brindle::desktop {

namespace {

// In points.
constexpr int iconSide = 16;
constexpr int gap = 6;
constexpr int rowPadding = 5;
constexpr int pillPadding = 7;

/// What is the same for every cell of a row that is drawn.
QPalette::ColorGroup colorGroup(const QStyleOptionViewItem& option) {
    if (!option.state.testFlag(QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state.testFlag(QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive;
}

QColor textColor(const QStyleOptionViewItem& option, bool isFaint = false) {
    const auto group = colorGroup(option);
    if (option.state.testFlag(QStyle::State_Selected))
        return option.palette.color(group, QPalette::HighlightedText);
    return option.palette.color(group, isFaint ? QPalette::PlaceholderText : QPalette::Text);
}

/// Whether it is drawn in the colours of a selection that the keyboard works on.
bool isEmphasised(const QStyleOptionViewItem& option) {
    const QPalette& palette = option.palette;
    return option.state.testFlag(QStyle::State_Selected) && palette.color(QPalette::HighlightedText) != palette.color(QPalette::Text);
}

QRect mirrored(const QStyleOptionViewItem& option, const QRect& rect) {
    return QStyle::visualRect(option.direction, option.rect, rect);
}

void drawIcon(QPainter& painter, const QStyleOptionViewItem& option, const QRect& rect, const Image& image) {
    const auto mode = isEmphasised(option) ? QIcon::Selected : QIcon::Normal;
    images::icon(image).paint(&painter, mirrored(option, rect), Qt::AlignCenter, mode);
}

void drawText(QPainter& painter, const QStyleOptionViewItem& option, const QRect& rect, const QString& text) {
    const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width(), Qt::TextSingleLine);
    const auto alignment = QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawText(mirrored(option, rect), static_cast<int>(alignment) | Qt::TextSingleLine, shown);
}

QRect iconRect(const QRect& rect) {
    return {rect.left() + gap / 2, rect.top() + (rect.height() - iconSide) / 2, iconSide, iconSide};
}

/// A line that is legible on light and on dark, and no text.
QColor lineColor(const QStyleOptionViewItem& option) {
    QColor color = option.palette.color(QPalette::Text);
    constexpr float faint = 0.22F;
    color.setAlphaF(faint);
    return color;
}

void drawSeparator(QPainter& painter, const QStyleOptionViewItem& option) {
    painter.setPen(lineColor(option));
    const int y = option.rect.center().y();
    painter.drawLine(option.rect.left() + gap, y, option.rect.right() - gap, y);
}

} // namespace

void CellDelegate::dimSelection(QStyleOptionViewItem& option) {
    constexpr float faint = 0.3F;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        QColor highlight = option.palette.color(group, QPalette::Highlight);
        highlight.setAlphaF(faint);
        option.palette.setColor(group, QPalette::Highlight, highlight);
        option.palette.setColor(group, QPalette::HighlightedText, option.palette.color(group, QPalette::Text));
    }
}

int CellDelegate::rowHeight(const QFont& font) {
    return std::max(QFontMetrics(font).height(), iconSide) + 2 * rowPadding;
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QVariant height = index.data(rowHeightRole);
    const int points = height.isValid() ? qRound(height.toDouble()) : rowHeight(option.font);
    return {iconSide + gap, points};
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const {
    QStyleOptionViewItem option = given;
    const QStyle* const style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    const auto cell = index.data(cellRole).value<std::shared_ptr<TableCellView>>();
    if (!cell)
        return;
    painter->save();
    painter->setFont(option.font);
    painter->setRenderHint(QPainter::Antialiasing);
    if (const auto* const feed = dynamic_cast<const FeedTableCellView*>(cell.get()))
        drawCounted(*painter, option, feed->iconImageView, feed->nameTextField, feed->counterTextField);
    else if (const auto* const collection = dynamic_cast<const CollectionEntityTableCellView*>(cell.get()))
        drawCounted(*painter, option, collection->iconImageView, collection->nameTextField, collection->counterTextField);
    else if (const auto* const header = dynamic_cast<const GroupTableCellView*>(cell.get()))
        drawHeader(*painter, option, *header);
    else if (const auto* const article = dynamic_cast<const ArticleNameTableCellView*>(cell.get()))
        drawArticle(*painter, option, *article);
    else if (const auto* const image = dynamic_cast<const ImageTableCellView*>(cell.get()))
        drawImage(*painter, option, image->imageView);
    else if (dynamic_cast<const SeparatorTableCellView*>(cell.get()))
        drawSeparator(*painter, option);
    painter->restore();
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.state |= QStyle::State_KeyboardFocusChange;
        focus.backgroundColor =
            option.palette.color(colorGroup(option), option.state.testFlag(QStyle::State_Selected) ? QPalette::Highlight : QPalette::Base);
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
    }
}

void CellDelegate::drawCounted(
    QPainter& painter, const QStyleOptionViewItem& option, const ImageView& icon, const TextField& name, const TextField& counter) {
    const QRect place = iconRect(option.rect);
    if (icon.image())
        drawIcon(painter, option, place, *icon.image());
    int right = option.rect.right() - gap;
    if (const QString count = toQString(counter.stringValue()); !count.isEmpty()) {
        const int width = painter.fontMetrics().horizontalAdvance(count);
        const QRect pill(right - width - 2 * pillPadding, place.top() - 1, width + 2 * pillPadding, place.height() + 2);
        if (counter.drawsBackground() && !option.state.testFlag(QStyle::State_Selected)) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(lineColor(option));
            painter.drawRoundedRect(mirrored(option, pill), pill.height() / 2.0, pill.height() / 2.0);
        }
        painter.setPen(textColor(option, counter.textColor() == TextField::Color::systemGray));
        painter.drawText(mirrored(option, pill), Qt::AlignCenter, count);
        right = pill.left() - gap / 2;
    }
    painter.setPen(textColor(option));
    const int left = place.right() + gap;
    drawText(painter, option, {left, option.rect.top(), right - left, option.rect.height()}, titleText(name.stringValue()));
}

void CellDelegate::drawHeader(QPainter& painter, const QStyleOptionViewItem& option, const GroupTableCellView& cell) {
    QFont font = option.font;
    constexpr qreal headerScale = 0.9;
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * headerScale);
    painter.setFont(font);
    painter.setPen(textColor(option, true));
    drawText(painter, option, option.rect.adjusted(gap / 2, 0, -gap, 0), titleText(cell.nameTextField.stringValue()));
}

void CellDelegate::drawArticle(QPainter& painter, const QStyleOptionViewItem& option, const ArticleNameTableCellView& cell) {
    QRect rect = option.rect.adjusted(gap / 2, 0, -gap, 0);
    if (!cell.savedImageView.isHidden()) {
        const QRect mark(rect.right() - iconSide + 1, rect.top() + (rect.height() - iconSide) / 2, iconSide, iconSide);
        drawIcon(painter, option, mark, cell.savedImageView.image().value_or(Image::named("kept")));
        rect.setRight(mark.left() - gap / 2);
    }
    const bool isUnread = cell.article && !cell.article->entry->isRead();
    QFont font = option.font;
    font.setBold(isUnread);
    painter.setFont(font);
    painter.setPen(textColor(option));
    drawText(painter, option, rect, titleText(cell.nameTextField.stringValue()));
}

void CellDelegate::drawImage(QPainter& painter, const QStyleOptionViewItem& option, const ImageView& view) {
    if (!view.image())
        return;
    const QRect place = QStyle::alignedRect(option.direction, Qt::AlignCenter, {iconSide, iconSide}, option.rect);
    drawIcon(painter, option, place, *view.image());
}

} // namespace brindle::desktop
