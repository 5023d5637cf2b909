#pragma once

#include "SyndicatedParser/SyndicatedFeed.hpp"
#include "foundation/ColdBytes.hpp"
#include "foundation/Date.hpp"

#include <memory>

namespace brindle {

/// Takes the long texts of a feed's entries out of memory: they are read out of the feed's document again when one is asked for. The texts
/// of the document that was read last are at hand. Thread: main, but for `takeFrom`.
class StoredContents : public SyndicatedContent::Source, public std::enable_shared_from_this<StoredContents> {
public:
    /// `feed` is as parsed from its `data`, which must be there, and shows the same texts afterwards. Thread: the one that has the feed.
    static void takeFrom(const SyndicatedFeed& feed, std::shared_ptr<const Clock> clock);

    std::string text(std::size_t number) const override;

private:
    StoredContents(const SyndicatedFeed& feed, std::shared_ptr<const Clock> clock)
        : _document(*feed.data), _kind(feed.kind), _clock(std::move(clock)) {}
    std::vector<std::string> readTexts() const;

    const ColdBytes _document;
    const SyndicatedFeedKind _kind; ///< of the feed; its latest document may be of another
    const std::shared_ptr<const Clock> _clock;
};

} // namespace brindle
