#pragma once

#include "foundation/URL.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace brindle {

class URLSession;
class URLSessionDataTask;

/// Why a task ended without an answer. `description` is one sentence for people, in English.
struct URLError {
    enum class Code {
        cancelled,
        badURL,
        unsupportedURL,
        timedOut,
        cannotConnect,
        connectionLost,
        secureConnectionFailed,
        tooManyRedirects,
        other
    };

    Code code = Code::other;
    std::string description;
};

struct URLRequest {
    std::optional<URL> url;
};

struct URLResponse {
    int statusCode = 0; ///< 0 for an answer that is not HTTP (a file)
};

struct URLCredential {
    std::string user;
    std::string password;
};

/// What a server asks for before it answers.
struct URLAuthenticationChallenge {
    enum class Method { httpBasic, httpDigest, serverTrust, other };

    Method authenticationMethod = Method::httpBasic;
    int previousFailureCount = 0;
    std::string host;
    std::string realm;
};

enum class URLAuthenticationChallengeDisposition {
    useCredential,
    performDefaultHandling,
    cancelAuthenticationChallenge,
    rejectProtectionSpace
};

/// Receives what happens to the tasks of one session, on the main thread. Every task ends with exactly one `didComplete`.
class URLSessionDelegate {
public:
    using RedirectHandler = std::function<void(std::optional<URLRequest> request)>;
    using ChallengeHandler =
        std::function<void(URLAuthenticationChallengeDisposition disposition, std::optional<URLCredential> credential)>;

    virtual ~URLSessionDelegate() = default;
    /// The next piece of the body.
    virtual void didReceiveData(URLSessionDataTask& task, std::string data) = 0;
    /// `error` is absent when the whole body has come, whatever its status.
    virtual void didComplete(URLSessionDataTask& task, const std::optional<URLError>& error) = 0;
    /// Answer with the request to follow, or with none to take the redirect's own body as the answer. Once, at any time, on the main
    /// thread.
    virtual void willPerformRedirection(
        URLSessionDataTask& task, const URLResponse& response, const URLRequest& newRequest, RedirectHandler completionHandler) = 0;
    virtual void didReceiveChallenge(const URLAuthenticationChallenge& challenge, ChallengeHandler completionHandler) = 0;
    /// The session takes no more tasks; with an error only when it did not end by the program's own doing.
    virtual void didBecomeInvalid(const std::optional<URLError>& error) = 0;
};

struct URLSessionConfiguration {
    std::map<std::string, std::string> additionalHeaders;
    std::chrono::milliseconds timeoutForRequest{60'000}; ///< with no byte coming
    std::chrono::milliseconds timeoutForResource{7LL * 24 * 3600 * 1000};
    std::size_t maximumBody = std::numeric_limits<std::size_t>::max(); ///< bytes, unpacked; an answer that has more fails
};

/// One GET. Made by a session; starts at `resume`. Thread: main.
class URLSessionDataTask : public std::enable_shared_from_this<URLSessionDataTask> {
public:
    void resume();
    /// Ends the task with `cancelled`; nothing more of its body comes. No effect on a task that ended.
    void cancel();

    const URL& originalURL() const { return _url; }
    /// What was answered; absent before the first header.
    const std::optional<URLResponse>& response() const { return _response; }

private:
    friend class URLSession;
    friend class URLSessionEngine;
    URLSessionDataTask(std::weak_ptr<URLSession> session, URL url) : _session(std::move(session)), _url(std::move(url)) {}
    void send(const URL& url);
    /// Marks the task as ended and lets its session forget it; false when it had ended before.
    bool finish();

    std::weak_ptr<URLSession> _session;
    URL _url;
    std::optional<URLResponse> _response;
    std::uint64_t _identifier = 0; ///< of the request under way; 0 before `resume`
    bool _ended = false;
};

/// GETs over http and https, with no cookies, no cache and nothing kept but open connections, names and TLS sessions, which all sessions of
/// the process share. Certificates are always checked. Bodies come unpacked (gzip, deflate, brotli). At most 64 transfers are at work at
/// once and 6 for each host; the rest wait in line, and a transfer that stays silent makes room for one that has not begun yet. Thread:
/// main.
class URLSession : public std::enable_shared_from_this<URLSession> {
public:
    static constexpr int maximumTransfers = 64;
    static constexpr int maximumTransfersPerHost = 6;

    /// Holds the delegate for as long as it lives. A session that is dropped with tasks under way ends them without a word.
    static std::shared_ptr<URLSession> make(URLSessionConfiguration configuration, std::shared_ptr<URLSessionDelegate> delegate);
    ~URLSession();

    std::shared_ptr<URLSessionDataTask> dataTask(const URL& url);

    /// Cancels every task (each ends with `cancelled`) and takes no more.
    void invalidateAndCancel();

private:
    friend class URLSessionDataTask;
    friend class URLSessionEngine;
    URLSession(URLSessionConfiguration configuration, std::shared_ptr<URLSessionDelegate> delegate);

    URLSessionConfiguration _configuration;
    std::shared_ptr<URLSessionDelegate> _delegate;
    std::set<std::shared_ptr<URLSessionDataTask>> _tasks; ///< started and not ended
    bool _invalid = false;
};

} // namespace brindle
