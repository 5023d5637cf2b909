#include "SyndicatedParser/SyndicatedSession.hpp"

#include "SyndicatedParser/Makers.hpp"
#include "SyndicatedParser/SyndicatedSessionPass.hpp"
#include "foundation/Console.hpp"
#include "foundation/DispatchQueue.hpp"
#include "foundation/FatalError.hpp"
#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

/// Hands the events of the session's tasks on, without keeping the session.
class SyndicatedSession::TaskEvents : public URLSessionDelegate {
public:
    explicit TaskEvents(std::weak_ptr<SyndicatedSession> session) : _session(std::move(session)) {}

    void didReceiveData(URLSessionDataTask&, std::string data) override {
        const auto session = _session.lock();
        if (session && session->_collectedData.empty())
            session->_collectedData = std::move(data);
        else if (session)
            session->_collectedData += data;
    }

    void didComplete(URLSessionDataTask&, const std::optional<URLError>& error) override {
        if (const auto session = _session.lock())
            session->didComplete(error);
    }

    void willPerformRedirection(
        URLSessionDataTask&, const URLResponse&, const URLRequest& newRequest, RedirectHandler completionHandler) override {
        if (const auto session = _session.lock())
            session->willPerformRedirection(newRequest, completionHandler);
    }

    void didReceiveChallenge(const URLAuthenticationChallenge& challenge, ChallengeHandler completionHandler) override {
        if (const auto session = _session.lock())
            session->didReceiveChallenge(challenge, completionHandler);
    }

    void didBecomeInvalid(const std::optional<URLError>& error) override {
        if (error)
            Console::print("Session became invalid: " + error->description);
    }

private:
    const std::weak_ptr<SyndicatedSession> _session;
};

const std::string& SyndicatedSession::defaultUserAgent() {
    static const std::string userAgent = "SyndicatedParser/9.0.0 (macOS/iOS; " + std::string(makersSite) + ")";
    return userAgent;
}

std::shared_ptr<SyndicatedSession> SyndicatedSession::make(URL url, SyndicatedSessionEnvironment environment) {
    assertMainThread();
    std::shared_ptr<SyndicatedSession> session(new SyndicatedSession(std::move(url), std::move(environment)));
    session->watchNetwork();
    return session;
}

SyndicatedSession::SyndicatedSession(URL url, SyndicatedSessionEnvironment environment)
    : _url(std::move(url)), _customUserAgent(defaultUserAgent()), _environment(std::move(environment)) {
    auto reachability = Reachability::make(_environment.route, DispatchQueue::main());
    if (!reachability)
        fatalError("Could not create the network monitor!");
    _reachability = std::move(*reachability);
    _feed = std::make_shared<SyndicatedFeed>(SyndicatedFeedKind::unknown, _environment.clock->now());
}

void SyndicatedSession::watchNetwork() {
    _isReachable = _reachability->connection() != Reachability::Connection::unavailable;
    _reachabilityObserver = NotificationCenter::defaultCenter().addObserver(
        Reachability::changedNotification, _reachability.get(), [weak = weak_from_this()](const Notification& notification) {
            if (const auto self = weak.lock())
                self->reachabilityDidChange(notification);
        });
    // Without a notifier the session hears of no changes, but still asks for the connection at each start.
    static_cast<void>(_reachability->startNotifier());
}

SyndicatedSession::~SyndicatedSession() {
    _reachabilityObserver = {};
    delegate.reset();
    _reachability->stopNotifier();
    if (_currentURLSession)
        _currentURLSession->invalidateAndCancel();
    if (_currentURLSessionDataTask)
        _currentURLSessionDataTask->cancel();
}

void SyndicatedSession::start(const ColdBytes& data) {
    assertMainThread();
    if (data.empty())
        connectWhenReachable();
    else
        SyndicatedSessionPass::begin(*this, data);
}

void SyndicatedSession::connectWhenReachable() {
    if (_reachability->connection() == Reachability::Connection::unavailable) {
        _isQueued = true;
        return;
    }
    connect();
    _didConnect = true;
}

void SyndicatedSession::connect() {
    URLSessionConfiguration configuration;
    configuration.additionalHeaders["User-Agent"] = _customUserAgent;
    if (_currentURLSession)
        _currentURLSession->invalidateAndCancel();
    _currentNumberOfRedirections = 0;
    _collectedData.clear();
    _currentURLSession = URLSession::make(std::move(configuration), std::make_shared<TaskEvents>(weak_from_this()));
    _currentURLSessionDataTask = _currentURLSession->dataTask(_url);
    _currentURLSessionDataTask->resume();
}

void SyndicatedSession::didComplete(const std::optional<URLError>& error) {
    if (!error)
        return SyndicatedSessionPass::begin(*this, std::exchange(_collectedData, {}));
    Console::print("URLSession failed with error: " + error->description);
    fail({SyndicatedSessionError::Case::connection, error});
}

void SyndicatedSession::willPerformRedirection(const URLRequest& newRequest, const URLSessionDelegate::RedirectHandler& completionHandler) {
    ++_currentNumberOfRedirections;
    if (_currentNumberOfRedirections > maximumRedirections || !newRequest.url)
        return completionHandler(std::nullopt);
    // Kept as is: a temporary redirect changes the feed's address for good, like a permanent one.
    _url = *newRequest.url;
    completionHandler(newRequest);
}

void SyndicatedSession::didReceiveChallenge(
    const URLAuthenticationChallenge& challenge, const URLSessionDelegate::ChallengeHandler& completionHandler) {
    using Disposition = URLAuthenticationChallengeDisposition;
    if (challenge.authenticationMethod == URLAuthenticationChallenge::Method::serverTrust)
        return completionHandler(Disposition::performDefaultHandling, std::nullopt);
    if (challenge.previousFailureCount >= 1)
        return completionHandler(Disposition::cancelAuthenticationChallenge, std::nullopt);
    Console::print("Task Authentication Required");
    DispatchQueue::main().async([weak = weak_from_this(), completionHandler] {
        if (const auto self = weak.lock())
            self->answerChallenge(completionHandler);
    });
}

void SyndicatedSession::answerChallenge(const URLSessionDelegate::ChallengeHandler& completionHandler) {
    using Disposition = URLAuthenticationChallengeDisposition;
    if (const auto asked = delegate.lock(); asked && asked->syndicatedSessionShouldCancelAuthentication(*this))
        return completionHandler(Disposition::cancelAuthenticationChallenge, std::nullopt);
    const auto asked = delegate.lock();
    auto credential = asked ? asked->syndicatedSessionCredential(*this) : std::nullopt;
    if (credential)
        completionHandler(Disposition::useCredential, std::move(credential));
    else
        completionHandler(Disposition::rejectProtectionSpace, std::nullopt);
}

void SyndicatedSession::didDiscoverFeeds(const SyndicatedDiscovery::Feeds& feeds) {
    if (feeds.size() != 1) {
        if (const auto told = delegate.lock())
            told->syndicatedSessionDidDiscoverFeeds(*this, feeds);
        return;
    }
    const auto url = feeds.front()->primaryURL();
    if (!url)
        return fail({SyndicatedSessionError::Case::noURL, std::nullopt});
    _url = *url;
    connectWhenReachable();
}

void SyndicatedSession::reachabilityDidChange(const Notification& notification) {
    if (notification.object != _reachability.get())
        return;
    if (_reachability->connection() == Reachability::Connection::unavailable) {
        _isReachable = false;
        return;
    }
    _isReachable = true;
    // Kept as is: a session that was never started fetches too.
    if (!_isQueued && _didConnect)
        return;
    _isQueued = false;
    connectWhenReachable();
}

void SyndicatedSession::fail(const SyndicatedSessionError& error) {
    if (const auto told = delegate.lock())
        told->syndicatedSessionDidFail(*this, error);
}

} // namespace brindle
