#include "cli/DetectCommand.hpp"

#include "SyndicatedParser/FeedKindDetection.hpp"
#include "cli/DocumentSequence.hpp"
#include "cli/Input.hpp"

#include <string>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;

CommandResult run(const CommandContext& context) {
    auto bytes = readInput(context.arguments.plain.front());
    if (!bytes)
        return tl::unexpected(bytes.error());
    DecodedDocument document = decodeDocument(*std::move(bytes));
    const std::string kind = document.text.empty() ? std::string() : kindName(detectFeedKind(document.text)); // empty: nothing to detect
    const std::string encoding(name(document.encoding));
    if (context.settings.json) {
        JSON json = JSON::object();
        json["encoding"] = encoding;
        json["kind"] = kind.empty() ? JSON() : JSON(kind);
        json["text"] = std::move(document.text);
        context.output.json(json);
        return ExitStatus::done;
    }
    context.output.text("encoding: " + encoding + "\nkind: " + (kind.empty() ? "-" : kind) + "\n\n");
    context.output.document(document.text);
    return ExitStatus::done;
}

} // namespace

Command detectCommand() {
    return {
        "detect", "FILE", "Shows what a document is decoded and detected as. The text is the one that a parser would get.", {}, 1, 1, run};
}

} // namespace brindle
