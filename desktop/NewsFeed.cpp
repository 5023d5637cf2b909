#include "desktop/NewsFeed.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/FileManager.hpp"

#include <QUrl>

namespace brindle::desktop {

std::string NewsFeed::address() const {
    return fromQString(QString::fromLatin1(QUrl::fromLocalFile(toQString(_file.string())).toEncoded()));
}

void NewsFeed::fill(const FeedsManager& library) const {
    const auto url = URL::make(address());
    const auto feedItem = url ? library.feedItem(*url) : nullptr;
    const auto document = feedItem ? FileManager::contents(_file) : tl::unexpected(FileError{});
    if (!document)
        return;
    feedItem->data = *document;
    feedItem->session().start(*document);
}

} // namespace brindle::desktop
