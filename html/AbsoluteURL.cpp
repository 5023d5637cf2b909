#include "html/AbsoluteURL.hpp"

#include <algorithm>

#include "html/AsciiText.hpp"

namespace brindle::html {

namespace {

/// The parts of a URI reference, each but the path with whether it is there at all.
struct Parts {
    std::optional<std::string_view> scheme;
    std::optional<std::string_view> authority;
    std::string_view path;
    std::optional<std::string_view> query;
    std::optional<std::string_view> fragment;
};

bool isScheme(std::string_view text) noexcept {
    return !text.empty() && isAsciiAlpha(text.front()) &&
           std::all_of(text.begin(), text.end(), [](char c) { return isAsciiAlphanumeric(c) || c == '+' || c == '-' || c == '.'; });
}

/// Cuts off what follows the first `mark`, with the mark.
std::optional<std::string_view> cutBehind(std::string_view& text, char mark) noexcept {
    const std::size_t at = text.find(mark);
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view behind = text.substr(at + 1);
    text = text.substr(0, at);
    return behind;
}

Parts split(std::string_view text) noexcept {
    Parts parts;
    parts.fragment = cutBehind(text, '#');
    parts.query = cutBehind(text, '?');
    const std::size_t colon = text.find(':');
    if (colon != std::string_view::npos && isScheme(text.substr(0, colon))) {
        parts.scheme = text.substr(0, colon);
        text.remove_prefix(colon + 1);
    }
    if (text.starts_with("//")) {
        text.remove_prefix(2);
        const std::size_t end = std::min(text.find('/'), text.size());
        parts.authority = text.substr(0, end);
        text.remove_prefix(end);
    }
    parts.path = text;
    return parts;
}

/// Section 5.2.4.
std::string withoutDotSegments(std::string_view path) {
    std::string kept;
    while (!path.empty()) {
        if (path.starts_with("../") || path.starts_with("./")) {
            path.remove_prefix(path.find('/') + 1);
        } else if (path.starts_with("/./") || path == "/.") {
            path = path == "/." ? path.substr(0, 1) : path.substr(2);
        } else if (path.starts_with("/../") || path == "/..") {
            path = path == "/.." ? path.substr(0, 1) : path.substr(3);
            const std::size_t last = kept.rfind('/');
            kept.resize(last == std::string::npos ? 0 : last);
        } else if (path == "." || path == "..") {
            path = {};
        } else {
            const std::size_t end = std::min(path.find('/', 1), path.size());
            kept += path.substr(0, end);
            path.remove_prefix(end);
        }
    }
    return kept;
}

/// Section 5.2.3.
std::string merged(const Parts& base, std::string_view path) {
    if (base.authority && base.path.empty()) {
        return "/" + std::string(path);
    }
    return std::string(base.path.substr(0, base.path.rfind('/') + 1)) + std::string(path);
}

std::string joined(const Parts& parts) {
    std::string text = std::string(*parts.scheme) + ":";
    if (parts.authority) {
        text.append("//").append(*parts.authority);
    }
    text += parts.path;
    if (parts.query) {
        text.append("?").append(*parts.query);
    }
    if (parts.fragment) {
        text.append("#").append(*parts.fragment);
    }
    return text;
}

} // namespace

std::optional<std::string> absoluteURL(std::string_view base, std::string_view reference) {
    const Parts baseParts = split(base);
    Parts parts = split(reference);
    std::string path;
    if (parts.scheme) {
        path = withoutDotSegments(parts.path);
    } else {
        if (!baseParts.scheme) {
            return std::nullopt;
        }
        parts.scheme = baseParts.scheme;
        if (parts.authority) {
            path = withoutDotSegments(parts.path);
        } else {
            parts.authority = baseParts.authority;
            if (parts.path.empty()) {
                path = baseParts.path;
                parts.query = parts.query ? parts.query : baseParts.query;
            } else {
                path = withoutDotSegments(parts.path.starts_with('/') ? std::string(parts.path) : merged(baseParts, parts.path));
            }
        }
    }
    parts.path = path;
    return joined(parts);
}

} // namespace brindle::html
