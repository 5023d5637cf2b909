#include "Brindle/shell/FeedURL.hpp"

#include <string>

namespace brindle {

std::optional<URL> normalizedFeedURL(const URL& url) {
    const auto scheme = url.scheme();
    if (scheme == "http" || scheme == "https")
        return url;
    if (scheme != "feed")
        return std::nullopt;
    const std::string_view rest = std::string_view(url.absoluteString()).substr(scheme->size());
    // Kept as is: a secure origin is not told by the scheme, so it is fetched by http.
    if (rest.starts_with("://"))
        return URL::make("http" + std::string(rest));
    // Kept as is: the colon stays in front, so that what follows "feed:" without slashes comes to nothing.
    return URL::make(rest);
}

std::optional<URL> typedFeedURL(std::string_view text) {
    // Kept as is: only the beginning is looked at, so "httpexample.test" gets no scheme, and a "feed://" address becomes one of a host
    // "feed".
    const auto url = text.starts_with("http") ? URL::make(text) : URL::make("http://" + std::string(text));
    return url ? normalizedFeedURL(*url) : std::nullopt;
}

} // namespace brindle
