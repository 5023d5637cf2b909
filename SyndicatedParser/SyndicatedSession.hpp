#pragma once

#include "SyndicatedParser/FeedKindDetection.hpp"
#include "SyndicatedParser/IconDiscovery.hpp"
#include "SyndicatedParser/Reachability.hpp"
#include "SyndicatedParser/SyndicatedDiscovery.hpp"
#include "SyndicatedParser/SyndicatedFeed.hpp"
#include "SyndicatedParser/SyndicatedSessionError.hpp"
#include "foundation/Date.hpp"
#include "foundation/NotificationCenter.hpp"
#include "foundation/URL.hpp"
#include "foundation/URLSession.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

class SyndicatedSession;

/// Receives what a session finds. All on the main thread, but for `shouldDiscoverFeeds` and `shouldDiscoverIcon`, which are asked on the
/// session's queue and must be safe there.
class SyndicatedSessionDelegate {
public:
    virtual ~SyndicatedSessionDelegate() = default;
    virtual void syndicatedSessionDidFinishParsing(SyndicatedSession& session) = 0;
    virtual void syndicatedSessionDidFail(SyndicatedSession& session, const SyndicatedSessionError& error) = 0;
    virtual std::optional<URLCredential> syndicatedSessionCredential(SyndicatedSession& session) = 0;
    virtual bool syndicatedSessionShouldCancelAuthentication(SyndicatedSession& session) = 0;
    virtual void syndicatedSessionDidDetectKind(SyndicatedSession& session, SyndicatedFeedKind kind) = 0;
    virtual bool syndicatedSessionShouldDiscoverFeeds() = 0;
    virtual void syndicatedSessionDidDiscoverFeeds(
        SyndicatedSession& session, const std::vector<std::shared_ptr<SyndicatedFeed>>& feeds) = 0;
    virtual bool syndicatedSessionShouldDiscoverIcon() = 0;
    virtual void syndicatedSessionDidDiscoverIcon(SyndicatedSession& session, const std::string& bytes) = 0;
    /// The icon step that follows each good parse is over: not wanted, nothing found, or the icon delivered. Once for each
    /// `syndicatedSessionDidFinishParsing`.
    virtual void syndicatedSessionDidEndIconStep(SyndicatedSession&) {}
};

/// What a session asks of its surroundings.
struct SyndicatedSessionEnvironment {
    std::shared_ptr<const Clock> clock;
    std::shared_ptr<NetworkRoute> route;
    /// Null: no icons are looked for.
    std::shared_ptr<IconDiscovery> iconDiscovery;
    /// For a program that runs for days: what is rarely looked at is kept in little memory, at the price of some time.
    bool keepsDocumentsCompactly = false;
};

/// Turns a feed's URL into a filled `SyndicatedFeed`, again at each `start`: fetches, decodes, detects, parses, follows a page to its only
/// feed, keeps `url` current over redirects, waits while the network is away, and asks for the icon after a good parse. Reports through its
/// delegate only. Thread: main.
class SyndicatedSession : public std::enable_shared_from_this<SyndicatedSession> {
public:
    static constexpr int maximumRedirections = 3;

    /// Watches the network from birth. A monitor that can't be made is fatal.
    static std::shared_ptr<SyndicatedSession> make(URL url, SyndicatedSessionEnvironment environment);
    ~SyndicatedSession();

    /// "SyndicatedParser/9.0.0 (macOS/iOS; " and the makers' site.
    static const std::string& defaultUserAgent();

    /// Takes effect at the next connect.
    void setCustomUserAgent(std::string userAgent) { _customUserAgent = std::move(userAgent); }

    /// Fetches and parses the feed; with `data` that is not empty, parses that instead and touches no network.
    void start(const ColdBytes& data = {});

    const URL& url() const { return _url; }
    /// The latest result: replaced as a whole on the main thread when a parse ends.
    const std::shared_ptr<SyndicatedFeed>& feed() const { return _feed; }
    bool isReachable() const { return _isReachable; }
    /// Whether a fetch waits for the network.
    bool isQueued() const { return _isQueued; }

    std::weak_ptr<SyndicatedSessionDelegate> delegate;

private:
    friend class SyndicatedSessionPass;
    class TaskEvents;

    SyndicatedSession(URL url, SyndicatedSessionEnvironment environment);
    void watchNetwork();
    void connect();
    void connectWhenReachable();
    void willPerformRedirection(const URLRequest& newRequest, const URLSessionDelegate::RedirectHandler& completionHandler);
    void didReceiveChallenge(const URLAuthenticationChallenge& challenge, const URLSessionDelegate::ChallengeHandler& completionHandler);
    void answerChallenge(const URLSessionDelegate::ChallengeHandler& completionHandler);
    void didComplete(const std::optional<URLError>& error);
    void didDiscoverFeeds(const SyndicatedDiscovery::Feeds& feeds);
    void reachabilityDidChange(const Notification& notification);
    void fail(const SyndicatedSessionError& error);

    URL _url;
    std::shared_ptr<SyndicatedFeed> _feed;
    std::string _customUserAgent;
    bool _isReachable = false;
    std::shared_ptr<URLSession> _currentURLSession;
    std::shared_ptr<URLSessionDataTask> _currentURLSessionDataTask;
    int _currentNumberOfRedirections = 0;
    bool _isQueued = false;
    bool _didConnect = false;
    std::string _collectedData;
    std::shared_ptr<Reachability> _reachability;
    NotificationCenter::Token _reachabilityObserver;
    SyndicatedSessionEnvironment _environment;
};

} // namespace brindle
