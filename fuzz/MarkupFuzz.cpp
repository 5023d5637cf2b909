// The markup toolkit: a text through the tokeniser and both tree builders, searched, written and read again.
#include "fuzz/Fuzzing.hpp"
#include "html/Parser.hpp"
#include "html/TreeDump.hpp"

using namespace brindle;

namespace {

void search(html::Document& document) {
    for (const html::Element* const element : document.getElementsByTag("link"))
        static_cast<void>(element->attr("abs:href"));
}

std::string rewritten(const std::string& text) {
    html::Parser parser = html::Parser::xmlParser();
    const auto document = html::parse(text, "", parser);
    document->outputSettings().setPrettyPrint(false);
    return document->outerHtml();
}

/// What was written twice stays as it is. Not once: a carriage return that came as a reference ends as a line's end.
void throughXML(std::string_view text) {
    html::Parser parser = html::Parser::xmlParser();
    parser.setMaxErrors(16);
    const auto document = html::parse(std::string(text), "http://site.test/a", parser);
    search(*document);
    static_cast<void>(html::html5libDump(*document));
    const std::string settled = rewritten(document->outerHtml());
    const std::string again = rewritten(settled);
    fuzz::require(rewritten(again) == again);
}

void throughHTML(std::string_view text) {
    const auto document = html::parse(std::string(text));
    search(*document);
    static_cast<void>(html::html5libDump(*document));
    static_cast<void>(html::parse(document->outerHtml()));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    throughXML(fuzz::view(data, size));
    throughHTML(fuzz::view(data, size));
    return 0;
}
