#pragma once

#include "SyndicatedParser/SyndicatedCategory.hpp"
#include "SyndicatedParser/SyndicatedContent.hpp"
#include "SyndicatedParser/SyndicatedEnclosure.hpp"
#include "SyndicatedParser/SyndicatedLink.hpp"
#include "foundation/Date.hpp"

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindle {

class SyndicatedFeed;

/// One entry of a feed, independent of the format. A parse fills it on its queue; afterwards it belongs to the main thread. `state` alone
/// may be read by the next parse while the main thread changes it.
class SyndicatedEntry {
public:
    /// The values are stored in files.
    enum class State { unread = 0, read };

    /// `now` becomes both dates: an entry that its feed gives no date for carries the moment of its parse.
    explicit SyndicatedEntry(Date now) : dateCreated(now), dateUpdated(now) {}

    std::string identifier; ///< as given by the feed, untrimmed
    std::string title;
    Date dateCreated;
    Date dateUpdated;
    std::shared_ptr<SyndicatedContent> summary;
    std::string copyright;
    /// Bags: nothing is merged, and nothing depends on the order but which of several alternate links is preferred (the first).
    std::vector<SyndicatedCategory> categories;
    std::vector<SyndicatedLink> links;
    std::vector<SyndicatedEnclosure> enclosures;
    std::weak_ptr<SyndicatedFeed> feed;

    const std::shared_ptr<SyndicatedContent>& content() const { return _content; }

    /// Also becomes the summary where the entry belongs to an Atom feed and has none.
    void setContent(std::shared_ptr<SyndicatedContent> content);

    State state() const { return _state.load(std::memory_order_relaxed); }
    void setState(State state) { _state.store(state, std::memory_order_relaxed); }
    bool isRead() const { return state() == State::read; }
    void setIsRead(bool isRead) { setState(isRead ? State::read : State::unread); }

    /// `identifier`, else the preferred link's text, else `title`: whichever is first not empty.
    std::string effectiveIdentifier() const;

    /// The only link's URL, whatever its relation; else an alternate link's.
    std::optional<URL> preferredLinkURL() const;

private:
    std::shared_ptr<SyndicatedContent> _content;
    std::atomic<State> _state = State::unread;
};

} // namespace brindle
