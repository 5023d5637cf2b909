#include "Brindle/opml/OPMLParser.hpp"

#include "foundation/StringEncoding.hpp"
#include "foundation/Text.hpp"

#include <optional>
#include <utility>

namespace brindle {

namespace {

constexpr std::string_view bodyName = "body";
constexpr std::string_view outlineName = "outline";

/// Kept as is: names and the value are compared by case, and an "htmlUrl" alone keeps an outline from being a group.
bool isFeed(const XMLAttributes& attributes) {
    return attributes["xmlUrl"] || attributes["htmlUrl"] || attributes["type"] == "rss";
}

std::string titleOf(const XMLAttributes& attributes) {
    const std::string_view title = attributes["title"].value_or(std::string_view());
    return std::string(title.empty() ? attributes["text"].value_or(std::string_view()) : title);
}

} // namespace

tl::expected<void, std::string> OPMLParser::parse(std::string_view bytes) {
    XMLParser parser(bytes, isValidUTF8(bytes) ? StringEncoding::utf8 : StringEncoding::isoLatin1);
    parser.delegate = this;
    if (parser.parse())
        return {};
    const auto& error = parser.parserError();
    return tl::unexpected(error && !error->message.empty() ? error->message : std::string("unknown error"));
}

std::vector<OPMLEvent> OPMLParser::takeEvents() {
    return std::exchange(_events, {});
}

void OPMLParser::didStartElement(std::string_view name, const XMLAttributes& attributes) {
    const std::string element = text::lowercasedASCII(name);
    if (element == bodyName)
        _isInsideBodyElement = true;
    if (!_isInsideBodyElement || element != outlineName)
        return;
    std::string title = titleOf(attributes);
    if (isFeed(attributes))
        return addFeed(std::move(title), attributes);
    _events.emplace_back(OPMLGroup{std::move(title)});
    _isAddingToChildFeedGroup = true;
}

void OPMLParser::addFeed(std::string title, const XMLAttributes& attributes) {
    const auto address = attributes["xmlUrl"];
    auto url = address ? URL::make(*address) : std::nullopt;
    if (url)
        _events.emplace_back(OPMLFeed{std::move(title), *std::move(url)});
}

void OPMLParser::didEndElement(std::string_view name) {
    const std::string element = text::lowercasedASCII(name);
    if (element == bodyName)
        _isInsideBodyElement = false;
    if (!_isInsideBodyElement || element != outlineName || !_isAddingToChildFeedGroup)
        return;
    _isAddingToChildFeedGroup = false;
    _events.emplace_back(OPMLGroupEnd{});
}

} // namespace brindle
