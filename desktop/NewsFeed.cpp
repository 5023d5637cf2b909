#include "desktop/NewsFeed.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/FileManager.hpp"

#include <QUrl>

namespace brindle::desktop {

std::string NewsFeed::address() const {
    return fromQString(QString::fromLatin1(QUrl::fromLocalFile(toQString(_file.string())).toEncoded()));
}

bool NewsFeed::isNews(const URL& url) const {
    const std::string& text = url.absoluteString();
    return text == address() || (text.starts_with("file:") && text.ends_with("/share/brindle/news.xml"));
}

void NewsFeed::fill(const FeedsManager& library) const {
    for (const std::shared_ptr<FeedItem>& feedItem : FeedsManager::items(library.feeds)) {
        const auto document = isNews(feedItem->url()) ? FileManager::contents(_file) : tl::unexpected(FileError{});
        if (!document)
            continue;
        feedItem->data = *document;
        feedItem->session().start(*document);
    }
}

} // namespace brindle::desktop
