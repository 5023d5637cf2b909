#pragma once

#include "SyndicatedParser/SyndicatedEntry.hpp"
#include "foundation/Coding.hpp"

#include <memory>
#include <string>
#include <vector>

namespace brindle {

class FeedItem;

/// An entry with the feed it came from. Made anew at each parse, so its identity lasts until the next update of its feed; across updates an
/// article is known by its key. Thread: main.
class FeedItemArticle : public Coding {
public:
    FeedItemArticle(std::shared_ptr<SyndicatedEntry> articleEntry, std::weak_ptr<FeedItem> item);
    /// `now` becomes the entry's dates, which are not archived. Fatal when an enclosure's URL text is none.
    static std::shared_ptr<FeedItemArticle> decode(const Decoder& decoder, Date now);
    /// Prints a line.
    ~FeedItemArticle() override;
    FeedItemArticle(const FeedItemArticle&) = delete;
    FeedItemArticle& operator=(const FeedItemArticle&) = delete;

    const std::shared_ptr<SyndicatedEntry> entry;
    std::weak_ptr<FeedItem> feedItem;

    /// The entry's title, "&" and the text of its preferred link: the article's identity in its feed's `articleStateCache`. Not escaped.
    std::string articleStateKey() const;

    std::vector<std::string_view> archiveClasses() const override;
    void encode(Coder& coder) const override;
};

} // namespace brindle
