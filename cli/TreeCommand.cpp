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

std::unique_ptr<html::Document> treeOf(std::string text, const Arguments& arguments) {
    if (!arguments.has("html")) {
        html::Parser parser = html::Parser::xmlParser();
        return html::parse(std::move(text), "", parser);
    }
    const auto context = arguments.value("fragment");
    return context ? html::Parser::htmlParser().parseFragment(std::move(text), *context) : html::parse(std::move(text));
}

tl::expected<std::string, CommandError> treeText(std::string text, const Arguments& arguments, bool dumped) {
    try {
        const std::unique_ptr<html::Document> document = treeOf(std::move(text), arguments);
        return dumped ? html::html5libDump(*document) : document->outerHtml();
    } catch (const html::Error& error) {
        return failure(std::string("the document could not be read: ") + error.what());
    }
}

CommandResult run(const CommandContext& context) {
    if (context.arguments.has("fragment") && !context.arguments.has("html"))
        return wrongUsage("tree: --fragment needs --html");
    const std::string format = context.arguments.value("format").value_or("markup");
    if (format != "markup" && format != "html5lib")
        return wrongUsage("tree: --format takes markup or html5lib, not '" + format + "'");
    const auto bytes = readInput(context.arguments.plain.front());
    if (!bytes)
        return tl::unexpected(bytes.error());
    const auto text = treeText(decodeDocument(*bytes).text, context.arguments, format == "html5lib");
    if (!text)
        return tl::unexpected(text.error());
    context.output.document(*text);
    return ExitStatus::done;
}

} // namespace

Command treeCommand() {
    return {"tree", "[--html [--fragment CONTEXT]] [--format markup|html5lib] FILE",
        "Prints the tree that the markup toolkit makes of a document, as of feeds or by the rules of HTML. Plain text, also with --json.",
        {{"format", "FORMAT", "markup (default), or html5lib: one line for each node"}, {"html", "", "build by the rules of HTML"},
            {"fragment", "CONTEXT", "with --html: build the content of an element, such as td or \"svg path\""}},
        1, 1, run};
}

} // namespace brindle
