#include "foundation/URL.hpp"

#include <uriparser/Uri.h>

namespace brindle {

namespace {

/// The five components of a reference, as RFC 3986 appendix B tells them apart.
struct Components {
    std::optional<std::string_view> scheme;
    std::optional<std::string_view> authority;
    std::string_view path;
    std::optional<std::string_view> query;
    std::optional<std::string_view> fragment;
};

/// Takes what stands before the first of `delimiters` off `rest`.
std::string_view take(std::string_view& rest, std::string_view delimiters) {
    const std::string_view taken = rest.substr(0, rest.find_first_of(delimiters));
    rest.remove_prefix(taken.size());
    return taken;
}

Components split(std::string_view text) {
    Components parts;
    std::string_view rest = text;
    const std::size_t delimiter = rest.find_first_of(":/?#");
    if (delimiter != std::string_view::npos && rest[delimiter] == ':') {
        parts.scheme = rest.substr(0, delimiter);
        rest.remove_prefix(delimiter + 1);
    }
    if (rest.substr(0, 2) == "//") {
        rest.remove_prefix(2);
        parts.authority = take(rest, "/?#");
    }
    parts.path = take(rest, "?#");
    if (!rest.empty() && rest.front() == '?') {
        rest.remove_prefix(1);
        parts.query = take(rest, "#");
    }
    if (!rest.empty())
        parts.fragment = rest.substr(1);
    return parts;
}

bool isReference(std::string_view text) {
    UriUriA uri;
    const char* errorPosition = nullptr;
    if (uriParseSingleUriExA(&uri, text.data(), text.data() + text.size(), &errorPosition) != URI_SUCCESS)
        return false;
    uriFreeUriMembersA(&uri);
    return true;
}

/// `path` without its "." and ".." segments, RFC 3986 5.2.4. The path of a reference with a scheme or a merged one.
std::string removingDotSegments(std::string_view path) {
    std::string result;
    std::string_view rest = path;
    while (!rest.empty()) {
        const bool rooted = rest.front() == '/';
        const std::string_view segment = rest.substr(rooted, rest.find('/', rooted) - rooted);
        const bool last = segment.size() + rooted == rest.size();
        rest.remove_prefix(segment.size() + rooted);
        if (segment != "." && segment != "..") {
            if (rooted)
                result.push_back('/');
            result.append(segment);
            continue;
        }
        if (!rooted) {
            // Dots at the very start go with the slash behind them.
            rest.remove_prefix(last ? 0 : 1);
            continue;
        }
        if (segment == "..") {
            const std::size_t slash = result.rfind('/');
            result.erase(slash == std::string::npos ? 0 : slash);
        }
        if (last)
            result.push_back('/');
    }
    return result;
}

/// The base's path up to its last slash with `path` behind it, RFC 3986 5.2.3.
std::string merge(const Components& base, std::string_view path) {
    if (base.authority && base.path.empty())
        return std::string("/").append(path);
    return std::string(base.path.substr(0, base.path.rfind('/') + 1)).append(path);
}

std::string compose(const Components& parts) {
    std::string text;
    if (parts.scheme)
        text.append(*parts.scheme).append(":");
    if (parts.authority)
        text.append("//").append(*parts.authority);
    text.append(parts.path);
    if (parts.query)
        text.append("?").append(*parts.query);
    if (parts.fragment)
        text.append("#").append(*parts.fragment);
    return text;
}

} // namespace

std::optional<URL> URL::make(std::string_view text) {
    if (text.empty() || !isReference(text))
        return std::nullopt;
    URL url;
    url._text = text;
    const std::string_view own = url._text;
    const Components parts = split(own);
    const auto spanOf = [own](std::string_view part) { return Span{static_cast<std::size_t>(part.data() - own.data()), part.size()}; };
    if (parts.scheme)
        url._scheme = spanOf(*parts.scheme);
    url._path = spanOf(parts.path);
    if (parts.authority) {
        const std::string_view hostAndPort = parts.authority->substr(parts.authority->rfind('@') + 1);
        const std::size_t bracket = hostAndPort.rfind(']');
        const std::size_t colon = hostAndPort.find(':', bracket == std::string_view::npos ? 0 : bracket);
        url._host = spanOf(hostAndPort.substr(0, colon));
        if (colon != std::string_view::npos)
            url._port = spanOf(hostAndPort.substr(colon + 1));
    }
    return url;
}

std::optional<URL> URL::make(std::string_view text, const URL& base) {
    if (text.empty() || !isReference(text) || !base._scheme)
        return std::nullopt;
    const Components reference = split(text);
    const Components from = split(base._text);
    Components target = reference;
    std::string path;
    if (reference.scheme || reference.authority) {
        path = removingDotSegments(reference.path);
    } else {
        target.authority = from.authority;
        if (reference.path.empty()) {
            path = from.path;
            if (!reference.query)
                target.query = from.query;
        } else if (reference.path.front() == '/') {
            path = removingDotSegments(reference.path);
        } else {
            path = removingDotSegments(merge(from, reference.path));
        }
    }
    if (!reference.scheme)
        target.scheme = from.scheme;
    // Without an authority a path must not begin with two slashes (RFC 3986 3.3), which taking dot segments away can leave.
    if (!target.authority && path.substr(0, 2) == "//")
        path.insert(0, "/.");
    target.path = path;
    return make(compose(target));
}

std::optional<std::string_view> URL::scheme() const {
    return _scheme ? std::optional(view(*_scheme)) : std::nullopt;
}

std::optional<std::string_view> URL::host() const {
    return _host ? std::optional(view(*_host)) : std::nullopt;
}

std::optional<std::string_view> URL::port() const {
    return _port ? std::optional(view(*_port)) : std::nullopt;
}

std::string_view URL::path() const {
    return view(_path);
}

} // namespace brindle
