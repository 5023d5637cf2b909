#include "cli/TreeCommand.hpp"

#include "SyndicatedParser/FeedKindDetection.hpp"
#include "cli/Input.hpp"
#include "html/Error.hpp"
#include "html/Parser.hpp"
#include "html/TreeDump.hpp"

#include <memory>
#include <string>
#include <utility>

namespace brindle {

namespace {

tl::expected<std::string, CommandError> treeText(std::string text, bool dumped) {
    try {
        html::Parser parser = html::Parser::xmlParser();
        const std::unique_ptr<html::Document> document = html::parse(std::move(text), "", parser);
        return dumped ? html::html5libDump(*document) : document->outerHtml();
    } catch (const html::Error& error) {
        return failure(std::string("the document could not be read: ") + error.what());
    }
}

CommandResult run(const CommandContext& context) {
    for (const char* option : {"html", "fragment"}) {
        if (context.arguments.has(option))
            return wrongUsage("tree: --" + std::string(option) + " is not supported; only the XML builder is available");
    }
    const std::string format = context.arguments.value("format").value_or("markup");
    if (format != "markup" && format != "html5lib")
        return wrongUsage("tree: --format takes markup or html5lib, not '" + format + "'");
    const auto bytes = readInput(context.arguments.plain.front());
    if (!bytes)
        return tl::unexpected(bytes.error());
    const auto text = treeText(decodeDocument(*bytes).text, format == "html5lib");
    if (!text)
        return tl::unexpected(text.error());
    context.output.document(*text);
    return ExitStatus::done;
}

} // namespace

Command treeCommand() {
    return {"tree", "[--format markup|html5lib] FILE",
        "Prints the tree that the markup toolkit makes of a document. Plain text, also with --json.",
        {{"format", "FORMAT", "markup (default), or html5lib: one line for each node"},
            {"html", "", "build by the rules of HTML: not supported"},
            {"fragment", "CONTEXT", "build the content of an element: not supported"}},
        1, 1, run};
}

} // namespace brindle
