#pragma once

#include "Brindle/library/ArticleStateFilter.hpp"
#include "Brindle/library/Feed.hpp"
#include "Brindle/library/FeedItemDelegate.hpp"
#include "SyndicatedParser/SyndicatedSession.hpp"
#include "foundation/ColdBytes.hpp"
#include "foundation/Timer.hpp"
#include "foundation/UUID.hpp"

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace brindle {

/// Read state by article key: 1 is read, every other value unread.
using ArticleStateCache = std::unordered_map<std::string, std::int64_t>;

/// One subscribed feed: its session, its timer, the articles of the latest good parse, and the table by which new and read articles are
/// told. Thread: main, but for the two questions that the session asks on its queue.
class FeedItem : public Feed, public SyndicatedSessionDelegate {
public:
    static constexpr std::int64_t defaultUpdateRate = 30; ///< minutes

    /// Starts nothing. `updateRate` is in minutes.
    static std::shared_ptr<FeedItem> make(std::string name, URL url, std::int64_t updateRate, std::string username, std::string password,
        const SyndicatedSessionEnvironment& environment);
    /// Null when the name or a valid URL is missing.
    static std::shared_ptr<FeedItem> decode(const Decoder& decoder, const SyndicatedSessionEnvironment& environment);
    ~FeedItem() override;

    std::weak_ptr<FeedItemDelegate> delegate;
    UUID uuid = UUID::random(); ///< names the feed's files
    std::int64_t updateRate;    ///< minutes
    std::string username;       ///< archived, never sent
    std::string password;       ///< never archived, never sent
    ColdBytes data;             ///< the document of the latest good fetch; empty when there is none
    ColdBytes storedData;       ///< what the feed's file has; empty when there is none
    ArticleStateCache articleStateCache;

    /// The stored name; where that is empty, the title of the feed as parsed.
    std::string name() const override;
    const URL& url() const { return _session->url(); }
    SyndicatedSession& session() const { return *_session; }
    const std::vector<std::shared_ptr<FeedItemArticle>>& articles() const { return _articles; }

    const std::optional<std::string>& feedImageData() const { return _feedImageData; }
    void setFeedImageData(std::optional<std::string> data);

    /// Replaces the timer by a new one of `updateRate`, whose first shot comes after a whole period, and fetches at once when `fetchNow`.
    /// The only way a feed starts. Fatal when the rate in seconds does not fit.
    void scheduleUpdates(bool fetchNow);
    /// Ends and drops the timer.
    void invalidateTimer();
    bool hasTimer() const { return _timer != nullptr; }
    /// What the timer does: fetches, whatever else is under way.
    void parse();
    /// Whether the connection failed for the latest `parse`: what is reported then comes from the stored document, if there is one.
    bool lastConnectionFailed() const { return _lastConnectionFailed; }

    std::vector<std::shared_ptr<FeedItemArticle>> articlesWithState(ArticleStateFilter filter) const;
    /// Sets the article's state and remembers it; nothing with `any`. Nothing is saved or announced.
    void markArticle(FeedItemArticle& article, ArticleStateFilter state);

    std::vector<std::string_view> archiveClasses() const override;
    void encode(Coder& coder) const override;

    void syndicatedSessionDidFinishParsing(SyndicatedSession& session) override;
    void syndicatedSessionDidFail(SyndicatedSession& session, const SyndicatedSessionError& error) override;
    std::optional<URLCredential> syndicatedSessionCredential(SyndicatedSession& session) override;
    bool syndicatedSessionShouldCancelAuthentication(SyndicatedSession& session) override;
    void syndicatedSessionDidDetectKind(SyndicatedSession& session, SyndicatedFeedKind kind) override;
    bool syndicatedSessionShouldDiscoverFeeds() override;
    void syndicatedSessionDidDiscoverFeeds(SyndicatedSession& session, const std::vector<std::shared_ptr<SyndicatedFeed>>& feeds) override;
    bool syndicatedSessionShouldDiscoverIcon() override;
    void syndicatedSessionDidDiscoverIcon(SyndicatedSession& session, const std::string& bytes) override;
    void syndicatedSessionDidEndIconStep(SyndicatedSession& session) override;

private:
    FeedItem(
        std::string name, URL url, std::int64_t rate, std::string user, std::string pass, const SyndicatedSessionEnvironment& environment);
    std::shared_ptr<FeedItem> shared();

    SyndicatedSessionEnvironment _environment;
    std::shared_ptr<SyndicatedSession> _session;
    std::shared_ptr<Timer> _timer;
    std::vector<std::shared_ptr<FeedItemArticle>> _articles; ///< in the feed's order
    std::optional<std::string> _feedImageData;
    bool _lastConnectionFailed = false;
    /// What the icon question is answered from, on any thread: when an icon last arrived (microseconds since 1970, none: the minimum), and
    /// whether one is held.
    std::atomic<std::int64_t> _imageDiscoveryTime;
    std::atomic<bool> _holdsImage = false;
};

} // namespace brindle
