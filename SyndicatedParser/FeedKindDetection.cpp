#include "SyndicatedParser/FeedKindDetection.hpp"

#include "foundation/Console.hpp"
#include "foundation/JSONSerialization.hpp"
#include "html/Error.hpp"
#include "html/Parser.hpp"

#include <utility>

namespace brindle {

DecodedDocument decodeDocument(std::string bytes) {
    if (isValidUTF8(bytes))
        return {std::move(bytes), StringEncoding::utf8};
    if (std::optional<std::string> text = decode(bytes, StringEncoding::isoLatin1))
        return {std::move(*text), StringEncoding::isoLatin1};
    return {};
}

SyndicatedFeedKind detectFeedKind(std::string& text) {
    if (JSONSerialization::object(text))
        return SyndicatedFeedKind::json;
    try {
        html::Parser parser = html::Parser::xmlParser();
        // The tree is made in the text itself: a copy of a large document costs more than finding its kind.
        const std::unique_ptr<html::Document> document = html::parse(std::move(text), "", parser);
        const html::Elements elements = document->children();
        const SyndicatedFeedKind kind = elements.empty() ? SyndicatedFeedKind::unknown : feedKindOfRootElement(elements[0]->tagName());
        text = document->outerHtml();
        return kind;
    } catch (const html::Error& error) {
        Console::print(std::string("Could not parse feed: ") + error.what());
        return SyndicatedFeedKind::unknown;
    }
}

} // namespace brindle
