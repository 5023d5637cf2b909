#pragma once

#include "foundation/URLSession.hpp"

#include <chrono>
#include <cstdint>
#include <curl/curl.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindle {

/// One request on its way, from its place in the line to its answer: an easy handle of libcurl and what it has brought so far.
/// Thread: the network's.
class URLTransfer {
public:
    using Time = std::chrono::steady_clock::time_point;

    struct Request {
        std::uint64_t identifier = 0; ///< of the task that it serves
        std::string url;
        std::string host; ///< what the limit for each host goes by: scheme, host and port
        URLSessionConfiguration configuration;
        std::optional<URLCredential> credential;
        URLAuthenticationChallenge::Method credentialMethod = URLAuthenticationChallenge::Method::httpBasic;
        int failedCredentials = 0;
    };

    explicit URLTransfer(Request request) : _request(std::move(request)) {}
    ~URLTransfer();
    URLTransfer(const URLTransfer&) = delete;
    URLTransfer& operator=(const URLTransfer&) = delete;

    /// Makes the handle; false when libcurl has none to give.
    bool begin(CURLSH* share, Time now);
    /// Drops the handle and what came, for a later `begin`; the silence so far counts against the time limit.
    void suspend(Time now);

    CURL* handle() const { return _handle; }
    const Request& request() const { return _request; }
    bool hasBegun() const { return _beginnings > 0; }
    /// How long nothing has come.
    std::chrono::steady_clock::duration silence(Time now) const { return now - _lastActivity; }

    int statusCode() const;
    /// Where a redirect points, made absolute; absent for any other answer.
    std::optional<std::string> redirectTarget() const;
    /// What a 401 asks for; absent for any other answer, and for a 401 that asks for nothing.
    std::optional<URLAuthenticationChallenge> challenge() const;

    std::string takeBody() { return std::move(_body); }

private:
    static std::size_t receiveBody(char* data, std::size_t size, std::size_t count, void* transfer);
    void setURL();
    void makeRoom();
    static std::size_t receiveHeader(char* data, std::size_t size, std::size_t count, void* transfer);

    Request _request;
    CURL* _handle = nullptr;
    curl_slist* _headers = nullptr;
    int _beginnings = 0;
    std::chrono::steady_clock::duration _silenceBefore{};
    Time _lastActivity{};
    std::string _body;
    std::vector<std::string> _challenges; ///< values of WWW-Authenticate of the latest answer
};

/// The sentence for a failure of libcurl.
URLError urlError(CURLcode code);

} // namespace brindle
