#include "SyndicatedParser/IconLinks.hpp"

#include "SyndicatedParser/Normalisation.hpp"
#include "foundation/Console.hpp"
#include "foundation/Text.hpp"
#include "html/Error.hpp"
#include "html/Parser.hpp"

#include <memory>
#include <utility>

namespace brindle {

namespace {

std::unique_ptr<html::Document> documentOf(std::string page) {
    try {
        return html::parse(std::move(page));
    } catch (const html::Error&) {
        Console::print("Could not make document!");
        return nullptr;
    }
}

} // namespace

std::vector<URL> iconLinks(std::string page, const URL& root) {
    std::vector<URL> links;
    const std::unique_ptr<html::Document> document = documentOf(std::move(page));
    if (!document)
        return links;
    for (const html::Element* const element : document->getElementsByTag("link")) {
        const std::string relation = text::lowercased(element->attr("rel"));
        if (!relation.ends_with("icon") && !relation.starts_with("shortcut"))
            continue;
        if (std::optional<URL> link = sanitizedURL(root, element->attr("href")))
            links.push_back(std::move(*link));
    }
    return links;
}

} // namespace brindle
