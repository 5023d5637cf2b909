#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// A URI reference by RFC 3986, kept as given: nothing is normalised, so equality is equality of text. The empty text, a blank, a bad "%"
/// and any character outside ASCII give no URL. Thread: any; a value.
class URL {
public:
    /// Absent when `text` is no URI reference.
    static std::optional<URL> make(std::string_view text);

    /// `text` resolved against `base` by RFC 3986 5.2 (strict). Absent when `text` is no URI reference or `base` has no scheme.
    static std::optional<URL> make(std::string_view text, const URL& base);

    const std::string& absoluteString() const { return _text; }

    /// The components, as written and without their delimiters; absent when the reference does not have them. A present host may be empty
    /// ("file:///x"); an IPv6 host has its brackets.
    std::optional<std::string_view> scheme() const;
    std::optional<std::string_view> host() const;
    std::optional<std::string_view> port() const;
    std::string_view path() const;

    friend bool operator==(const URL& a, const URL& b) { return a._text == b._text; }

private:
    struct Span {
        std::size_t begin = 0;
        std::size_t size = 0;
    };

    std::string_view view(Span span) const { return std::string_view(_text).substr(span.begin, span.size); }

    std::string _text;
    std::optional<Span> _scheme;
    std::optional<Span> _host;
    std::optional<Span> _port;
    Span _path;
};

} // namespace brindle
