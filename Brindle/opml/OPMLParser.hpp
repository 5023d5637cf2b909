#pragma once

#include "Brindle/opml/OPMLEvent.hpp"
#include "foundation/XMLParser.hpp"

#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

/// Takes the outlines out of OPML documents (OPML 1.0 and 2.0), one document after another. Every outline inside "body" counts, whatever
/// stands between; a document of another kind just has none.
///
/// Kept as is: nesting is one bit. The first outline that ends after a group began ends the group, be it the group's own end or that of its
/// first feed, and later ends change nothing before the next group begins. The bit, like being inside "body", also outlasts a document
/// that broke off. Thread: any, one thread at a time.
class OPMLParser : private XMLParserDelegate {
public:
    /// Reads one document, as UTF-8 where its bytes are that, else in the encoding that it declares, else as ISO Latin 1. An error tells
    /// why it is no well-formed XML; the outlines before the fault are kept.
    tl::expected<void, std::string> parse(std::string_view bytes);

    /// Hands over what the documents since the last call held.
    std::vector<OPMLEvent> takeEvents();

private:
    void didStartElement(std::string_view name, const XMLAttributes& attributes) override;
    void didEndElement(std::string_view name) override;
    void foundCharacters(std::string_view) override {}
    void foundCDATA(std::string_view) override {}

    void addFeed(std::string title, const XMLAttributes& attributes);

    bool _isInsideBodyElement = false;
    bool _isAddingToChildFeedGroup = false;
    std::vector<OPMLEvent> _events;
};

} // namespace brindle
