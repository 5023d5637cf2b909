#pragma once

#include "SyndicatedParser/SyndicatedCategory.hpp"
#include "SyndicatedParser/SyndicatedEntry.hpp"
#include "SyndicatedParser/SyndicatedFeedKind.hpp"
#include "SyndicatedParser/SyndicatedLink.hpp"
#include "foundation/ColdBytes.hpp"
#include "foundation/Date.hpp"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindle {

/// A parsed feed, independent of its format, kept from one update to the next: a parse replaces `entries`, while `links` and `categories`
/// grow. Written by one parse at a time and handed to the main thread afterwards.
class SyndicatedFeed {
public:
    /// `now` becomes both dates.
    SyndicatedFeed(SyndicatedFeedKind feedKind, Date now) : kind(feedKind), datePublished(now), dateUpdated(now) {}

    const SyndicatedFeedKind kind;
    std::string identifier;
    std::string title;
    std::string subtitle;
    std::vector<std::shared_ptr<SyndicatedEntry>> entries; ///< in document order
    std::vector<SyndicatedLink> links;                     ///< in document order
    std::string languageCode = "en-US";
    std::string copyright;
    Date datePublished;
    Date dateUpdated;
    std::vector<SyndicatedCategory> categories;
    std::string version;
    std::optional<ColdBytes> data; ///< the document, in the encoding that decoded it

    /// The URL of the first alternate link; where there is none, of the first link.
    std::optional<URL> primaryURL() const;
};

} // namespace brindle
