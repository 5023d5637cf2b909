#pragma once

#include "Brindle/browser/ArticleNameTableCellView.hpp"
#include "Brindle/browser/GroupTableCellView.hpp"
#include "Brindle/browser/ImageTableCellView.hpp"
#include "platform/ImageView.hpp"
#include "platform/TableCellView.hpp"
#include "platform/TextField.hpp"

#include <QStyledItemDelegate>
#include <memory>

namespace brindle::desktop {

/// Draws the cells of outlines and tables, in the palette of the widget. Thread: main.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Makes a selection in a list without the keyboard fainter than in the one that has it.
    static void dimSelection(QStyleOptionViewItem& option);
    /// Of a row with an icon beside its text, by a font.
    static int rowHeight(const QFont& font);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    static void drawCounted(
        QPainter& painter, const QStyleOptionViewItem& option, const ImageView& icon, const TextField& name, const TextField& counter);
    static void drawHeader(QPainter& painter, const QStyleOptionViewItem& option, const GroupTableCellView& cell);
    static void drawArticle(QPainter& painter, const QStyleOptionViewItem& option, const ArticleNameTableCellView& cell);
    static void drawImage(QPainter& painter, const QStyleOptionViewItem& option, const ImageView& view);
};

} // namespace brindle::desktop
