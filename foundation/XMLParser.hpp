#pragma once

#include "foundation/StringEncoding.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brindle {

/// An attribute list in source order. Names keep their prefixes; values are decoded.
class XMLAttributes {
public:
    std::optional<std::string_view> operator[](std::string_view name) const;
    bool empty() const { return _attributes.empty(); }
    void clear() { _attributes.clear(); }
    void append(std::string_view name, std::string_view value) { _attributes.emplace_back(name, value); }
    auto begin() const { return _attributes.begin(); }
    auto end() const { return _attributes.end(); }

private:
    std::vector<std::pair<std::string_view, std::string_view>> _attributes;
};

/// Receives the events of one document, in order, on the thread that parses. Views are valid during the call only.
class XMLParserDelegate {
public:
    virtual ~XMLParserDelegate() = default;
    virtual void parserDidStartDocument() {}
    virtual void parserDidEndDocument() {}
    virtual void didStartElement(std::string_view name, const XMLAttributes& attributes) = 0;
    virtual void didEndElement(std::string_view name) = 0;
    /// Text between tags, references resolved; one run of text may come in several calls.
    virtual void foundCharacters(std::string_view text) = 0;
    /// The content of one CDATA section. Never delivered through foundCharacters as well.
    virtual void foundCDATA(std::string_view block) = 0;
};

struct XMLParserError {
    int code = 0; ///< libxml2's error number, or 0 for a limit of this class
    int line = 0; ///< 1-based; 0 when unknown
    std::string message;
};

/// A strict reader of XML 1.0 that reports events; namespaces are not processed. It reads nothing but the bytes it is given: no external
/// entity, no DTD, no network, and its memory is bounded against entity expansion and depth.
///
/// Two things beside the standard: references to names that the document does not declare are resolved by `namedReferences`, and characters
/// that XML 1.0 forbids are left out. White space before the XML declaration is passed over. All else is strict: unbalanced tags, a second
/// root, text after the root and "--" in a comment end the parse.
///
/// Encoding: bytes that were decoded as UTF-8 are read as UTF-8, whatever the document declares. Otherwise the declared encoding is taken
/// where the bytes are valid in it, else the encoding that decoded them. Thread: any, one thread at a time.
class XMLParser {
public:
    /// Resolves "nbsp" and the like, name without "&" and ";"; absent for an unknown name, which is an error of the document.
    using NamedReferences = std::function<std::optional<std::string_view>(std::string_view name)>;

    /// Borrows `data` until the parser is gone.
    XMLParser(std::string_view data, StringEncoding encoding);

    XMLParserDelegate* delegate = nullptr; ///< borrowed
    NamedReferences namedReferences;

    /// Runs to the end of the document; true when it was well-formed. Events up to an error have been delivered. Called once.
    bool parse();

    /// What stopped the parse; absent after a success.
    const std::optional<XMLParserError>& parserError() const { return _error; }

    /// Ends the parse from inside an event, as an error with the given message.
    void abortParsing(std::string message);

private:
    friend class XMLParserEvents;

    std::string_view _data;
    StringEncoding _encoding;
    std::optional<XMLParserError> _error;
    void* _context = nullptr;
};

} // namespace brindle
