#include "desktop/windows/CellText.hpp"

#include "Brindle/browser/ArticleNameTableCellView.hpp"
#include "Brindle/browser/CollectionEntityTableCellView.hpp"
#include "Brindle/browser/FeedTableCellView.hpp"
#include "Brindle/browser/GroupTableCellView.hpp"
#include "Brindle/browser/ImageTableCellView.hpp"
#include "Brindle/browser/SeparatorTableCellView.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

namespace brindle::desktop {

namespace {

QString with(const QString& name, const QString& more) {
    return more.isEmpty() ? name : name + QStringLiteral(", ") + more;
}

} // namespace

QString cellName(const TableCellView& cell) {
    if (const auto* const feed = dynamic_cast<const FeedTableCellView*>(&cell))
        return titleText(feed->nameTextField.stringValue());
    if (const auto* const collection = dynamic_cast<const CollectionEntityTableCellView*>(&cell))
        return titleText(collection->nameTextField.stringValue());
    if (const auto* const group = dynamic_cast<const GroupTableCellView*>(&cell))
        return titleText(group->nameTextField.stringValue());
    if (const auto* const article = dynamic_cast<const ArticleNameTableCellView*>(&cell))
        return titleText(article->nameTextField.stringValue());
    return {};
}

QString cellDescription(const TableCellView& cell) {
    const QString name = cellName(cell);
    if (const auto* const feed = dynamic_cast<const FeedTableCellView*>(&cell)) {
        const std::string& count = feed->counterTextField.stringValue();
        return with(name, count.empty() ? QString() : toQString(count) + QLatin1Char(' ') + toQString(localized("unread")));
    }
    if (const auto* const collection = dynamic_cast<const CollectionEntityTableCellView*>(&cell))
        return with(name, toQString(collection->counterTextField.stringValue()));
    if (const auto* const article = dynamic_cast<const ArticleNameTableCellView*>(&cell)) {
        const QString unread = article->article && !article->article->entry->isRead() ? toQString(localized("unread")) : QString();
        return with(with(name, unread), article->savedImageView.isHidden() ? QString() : toQString(localized("kept")));
    }
    if (dynamic_cast<const SeparatorTableCellView*>(&cell))
        return toQString(localized("Separator"));
    return name;
}

} // namespace brindle::desktop
