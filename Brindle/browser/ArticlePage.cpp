#include "Brindle/browser/ArticlePage.hpp"

#include "foundation/FileManager.hpp"
#include "foundation/StringEncoding.hpp"
#include "html/DataNodes.hpp"
#include "html/Error.hpp"
#include "html/Parser.hpp"

namespace brindle {

namespace {

constexpr std::string_view templateName = "feed_article.html";
constexpr std::string_view titlePlaceholder = "<%title%>";
constexpr std::string_view contentPlaceholder = "<%content%>";

/// `text` with its character references resolved: what it says as the content of a title element, in which there are no tags.
std::string resolved(const std::string& text) {
    try {
        const auto document = html::Parser::htmlParser().parseFragment(text, "title");
        std::string result;
        for (const html::Node* node = document->firstChild(); node; node = node->nextSibling()) {
            if (node->kind() == html::Node::Kind::text)
                result += static_cast<const html::TextNode&>(*node).text();
        }
        return result;
    } catch (const html::Error&) {
        return text;
    }
}

} // namespace

std::string articlePageTemplate(const std::filesystem::path& resources) {
    auto bytes = FileManager::contents(resources / templateName);
    return bytes && isValidUTF8(*bytes) ? *std::move(bytes) : std::string();
}

std::string articlePage(std::string_view pageTemplate, const std::string& title, std::string_view content) {
    const std::string titleText = resolved(title);
    std::string page;
    std::string_view rest = pageTemplate;
    // One pass, so that a title with a placeholder in it is no place for the content.
    for (std::size_t opening = rest.find("<%"); opening != std::string_view::npos; opening = rest.find("<%")) {
        page += rest.substr(0, opening);
        rest.remove_prefix(opening);
        if (rest.starts_with(titlePlaceholder)) {
            page += titleText;
            rest.remove_prefix(titlePlaceholder.size());
        } else if (rest.starts_with(contentPlaceholder)) {
            page += content;
            rest.remove_prefix(contentPlaceholder.size());
        } else {
            page += rest.substr(0, 2);
            rest.remove_prefix(2);
        }
    }
    page += rest;
    return page;
}

} // namespace brindle
