#include "foundation/URLTransfer.hpp"

#include "foundation/Text.hpp"

#include <algorithm>

namespace brindle {

namespace {

/// The value of `name="value"` or `name=value` in a challenge; empty when it is not there.
std::string parameter(std::string_view challenge, std::string_view name) {
    const std::string folded = text::lowercasedASCII(challenge);
    const std::size_t at = folded.find(std::string(name) + "=");
    if (at == std::string::npos)
        return {};
    std::string_view value = challenge.substr(at + name.size() + 1);
    if (value.starts_with('"'))
        return std::string(value.substr(1, value.find('"', 1) - 1));
    return std::string(value.substr(0, value.find_first_of(", ")));
}

} // namespace

URLTransfer::~URLTransfer() {
    if (_handle)
        curl_easy_cleanup(_handle);
    curl_slist_free_all(_headers);
}

bool URLTransfer::begin(CURLSH* share, Time now) {
    _handle = curl_easy_init();
    if (!_handle)
        return false;
    ++_beginnings;
    _lastActivity = now;
    const auto timeout = _request.configuration.timeoutForRequest;
    const auto left = timeout - std::chrono::duration_cast<std::chrono::milliseconds>(_silenceBefore);
    const long silentSeconds = std::max<long>(1, static_cast<long>(std::chrono::ceil<std::chrono::seconds>(left).count()));

    curl_easy_setopt(_handle, CURLOPT_PRIVATE, this);
    setURL();
    curl_easy_setopt(_handle, CURLOPT_SHARE, share);
    curl_easy_setopt(_handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(_handle, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(_handle, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(_handle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_2TLS));
    curl_easy_setopt(_handle, CURLOPT_ACCEPT_ENCODING, ""); // every one that the library can unpack
    curl_easy_setopt(_handle, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(_handle, CURLOPT_SSL_VERIFYHOST, 2L);
    curl_easy_setopt(_handle, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(timeout.count()));
    curl_easy_setopt(_handle, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(_handle, CURLOPT_LOW_SPEED_TIME, silentSeconds);
    curl_easy_setopt(_handle, CURLOPT_TIMEOUT_MS, static_cast<long>(_request.configuration.timeoutForResource.count()));
    curl_easy_setopt(_handle, CURLOPT_WRITEFUNCTION, &URLTransfer::receiveBody);
    curl_easy_setopt(_handle, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(_handle, CURLOPT_HEADERFUNCTION, &URLTransfer::receiveHeader);
    curl_easy_setopt(_handle, CURLOPT_HEADERDATA, this);
    if (!_headers) {
        for (const auto& [name, value] : _request.configuration.additionalHeaders)
            _headers = curl_slist_append(_headers, (name + ": " + value).c_str());
    }
    curl_easy_setopt(_handle, CURLOPT_HTTPHEADER, _headers);
    if (_request.credential) {
        // One method only: of several, libcurl would ask first which it is to be.
        const bool isDigest = _request.credentialMethod == URLAuthenticationChallenge::Method::httpDigest;
        curl_easy_setopt(_handle, CURLOPT_HTTPAUTH, static_cast<long>(isDigest ? CURLAUTH_DIGEST : CURLAUTH_BASIC));
        curl_easy_setopt(_handle, CURLOPT_USERNAME, _request.credential->user.c_str());
        curl_easy_setopt(_handle, CURLOPT_PASSWORD, _request.credential->password.c_str());
    }
    return true;
}

/// Without the user and password that it may hold: libcurl would send them to whoever answers, asked or not.
void URLTransfer::setURL() {
    const std::unique_ptr<CURLU, decltype(&curl_url_cleanup)> parts(curl_url(), &curl_url_cleanup);
    char* bare = nullptr;
    const bool isBare = parts && curl_url_set(parts.get(), CURLUPART_URL, _request.url.c_str(), CURLU_NON_SUPPORT_SCHEME) == CURLUE_OK &&
                        curl_url_set(parts.get(), CURLUPART_USER, nullptr, 0) == CURLUE_OK &&
                        curl_url_set(parts.get(), CURLUPART_PASSWORD, nullptr, 0) == CURLUE_OK &&
                        curl_url_get(parts.get(), CURLUPART_URL, &bare, 0) == CURLUE_OK;
    // What can't be taken apart fails as the address that it is.
    curl_easy_setopt(_handle, CURLOPT_URL, isBare ? bare : "");
    curl_free(bare);
}

void URLTransfer::suspend(Time now) {
    _silenceBefore += silence(now);
    curl_easy_cleanup(_handle);
    _handle = nullptr;
    _body.clear();
    _challenges.clear();
}

int URLTransfer::statusCode() const {
    long status = 0;
    curl_easy_getinfo(_handle, CURLINFO_RESPONSE_CODE, &status);
    return static_cast<int>(status);
}

std::optional<std::string> URLTransfer::redirectTarget() const {
    const char* target = nullptr;
    curl_easy_getinfo(_handle, CURLINFO_REDIRECT_URL, &target);
    if (!target)
        return std::nullopt;
    switch (statusCode()) {
    case 301:
    case 302:
    case 303:
    case 307:
    case 308:
        return std::string(target);
    default:
        return std::nullopt;
    }
}

std::optional<URLAuthenticationChallenge> URLTransfer::challenge() const {
    if (statusCode() != 401 || _challenges.empty())
        return std::nullopt;
    URLAuthenticationChallenge result;
    result.previousFailureCount = _request.failedCredentials + (_request.credential ? 1 : 0);
    if (const auto url = URL::make(_request.url))
        result.host = std::string(url->host().value_or(""));
    const std::string scheme = text::lowercasedASCII(_challenges.front());
    result.authenticationMethod = scheme.starts_with("basic")    ? URLAuthenticationChallenge::Method::httpBasic
                                  : scheme.starts_with("digest") ? URLAuthenticationChallenge::Method::httpDigest
                                                                 : URLAuthenticationChallenge::Method::other;
    result.realm = parameter(_challenges.front(), "realm");
    return result;
}

std::size_t URLTransfer::receiveBody(char* data, std::size_t size, std::size_t count, void* transfer) {
    auto& self = *static_cast<URLTransfer*>(transfer);
    self._lastActivity = std::chrono::steady_clock::now();
    if (size * count > self._request.configuration.maximumBody - self._body.size())
        return CURL_WRITEFUNC_ERROR;
    if (self._body.empty())
        self.makeRoom();
    self._body.append(data, size * count);
    return size * count;
}

void URLTransfer::makeRoom() {
    // What a server says of its body's size is a hint; a false one must cost nothing.
    constexpr curl_off_t largestTrusted = 1 << 24;
    curl_off_t size = 0;
    if (curl_easy_getinfo(_handle, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &size) == CURLE_OK && size > 0)
        _body.reserve(static_cast<std::size_t>(std::min(size, largestTrusted)));
}

std::size_t URLTransfer::receiveHeader(char* data, std::size_t size, std::size_t count, void* transfer) {
    auto& self = *static_cast<URLTransfer*>(transfer);
    self._lastActivity = std::chrono::steady_clock::now();
    const std::string_view line(data, size * count);
    constexpr std::string_view challengeName = "www-authenticate:";
    if (line.starts_with("HTTP/"))
        self._challenges.clear(); // a new answer begins (after a 1xx, or a digest's first round)
    else if (line.size() > challengeName.size() && text::lowercasedASCII(line.substr(0, challengeName.size())) == challengeName)
        self._challenges.emplace_back(text::trimmed(line.substr(challengeName.size())));
    return size * count;
}

URLError urlError(CURLcode code) {
    using Code = URLError::Code;
    switch (code) {
    case CURLE_URL_MALFORMAT:
        return {Code::badURL, "The address is not valid."};
    case CURLE_UNSUPPORTED_PROTOCOL:
        return {Code::unsupportedURL, "Only http and https addresses can be fetched."};
    case CURLE_OPERATION_TIMEDOUT:
        return {Code::timedOut, "The server did not answer in time."};
    case CURLE_COULDNT_RESOLVE_HOST:
        return {Code::cannotConnect, "The server's name could not be found."};
    case CURLE_COULDNT_RESOLVE_PROXY:
        return {Code::cannotConnect, "The proxy's name could not be found."};
    case CURLE_COULDNT_CONNECT:
        return {Code::cannotConnect, "Could not connect to the server."};
    case CURLE_WRITE_ERROR:
        return {Code::other, "The server's answer is too large."};
    case CURLE_GOT_NOTHING:
        return {Code::connectionLost, "The server closed the connection without an answer."};
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
        return {Code::connectionLost, "The connection to the server was lost."};
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_CACERT_BADFILE:
        return {Code::secureConnectionFailed, "A secure connection to the server could not be made."};
    default:
        return {Code::other, std::string("The transfer failed: ") + curl_easy_strerror(code) + "."};
    }
}

} // namespace brindle
