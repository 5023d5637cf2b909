#include "cli/ParseCommand.hpp"

#include "cli/DocumentSequence.hpp"
#include "cli/FeedJSON.hpp"
#include "cli/Input.hpp"
#include "cli/TextTable.hpp"

#include <optional>
#include <string>
#include <utility>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;

tl::expected<std::optional<SyndicatedFeedKind>, CommandError> kindArgument(const Arguments& arguments) {
    const auto text = arguments.value("as");
    if (!text)
        return std::nullopt;
    for (const SyndicatedFeedKind kind :
        {SyndicatedFeedKind::rss, SyndicatedFeedKind::rdf, SyndicatedFeedKind::atom, SyndicatedFeedKind::json}) {
        if (*text == kindName(kind))
            return kind;
    }
    return wrongUsage("parse: --as takes rss, rdf, atom or json, not '" + *text + "'");
}

JSON resultJSON(const std::string& file, const DocumentSequence::Result& result, const SyndicatedFeed& feed) {
    JSON json = JSON::object();
    json["file"] = file;
    json["encoding"] = name(result.encoding);
    json["detected"] = result.detected ? JSON(kindName(*result.detected)) : JSON();
    json["handlerCalls"] = result.handlerCalls;
    json["outcome"] = name(result.outcome);
    json["feed"] = feedJSON(feed);
    return json;
}

/// For people: one line about the document, then its entries.
std::string resultText(const std::string& file, const DocumentSequence::Result& result, const SyndicatedFeed& feed) {
    TextTable facts({file + ':', std::string(name(result.outcome))});
    facts.add({"  encoding", std::string(name(result.encoding))});
    facts.add({"  detected", result.detected ? kindName(*result.detected) : "-"});
    facts.add({"  kind", kindName(feed.kind)});
    facts.add({"  title", feed.title});
    facts.add({"  entries", std::to_string(feed.entries.size())});
    std::string text = facts.text();
    if (feed.entries.empty())
        return text;
    TextTable entries({"    Updated", "State", "Title", "Address"});
    for (const std::shared_ptr<SyndicatedEntry>& entry : feed.entries) {
        const auto url = entry->preferredLinkURL();
        entries.add({"    " + iso8601String(entry->dateUpdated), entry->isRead() ? "read" : "unread", entry->title,
            url ? url->absoluteString() : std::string()});
    }
    return text + entries.text();
}

CommandResult run(const CommandContext& context) {
    const auto kind = kindArgument(context.arguments);
    if (!kind)
        return tl::unexpected(kind.error());
    DocumentSequence sequence(*kind, context.settings.clock);
    JSON documents = JSON::array();
    std::string text;
    CommandResult end = ExitStatus::done;
    bool isFirst = true;
    for (const std::string& file : context.arguments.plain) {
        auto bytes = readInput(file);
        if (!bytes) {
            end = tl::unexpected(std::move(bytes.error()));
            break;
        }
        const DocumentSequence::Result result = sequence.read(*std::move(bytes));
        end = result.outcome == DocumentSequence::Outcome::finished ? ExitStatus::done : ExitStatus::failed;
        if (context.settings.json)
            documents.push_back(resultJSON(file, result, sequence.feed()));
        else
            text += resultText(file, result, sequence.feed());
        if (std::exchange(isFirst, false)) {
            for (const std::string& key : context.arguments.values("mark-read"))
                sequence.markRead(key);
        }
    }
    // What was read before a file that can't be read is a result all the same.
    if (!documents.empty())
        context.output.json(documents);
    else
        context.output.text(text);
    return end;
}

} // namespace

Command parseCommand() {
    return {"parse", "[--as KIND] [--mark-read KEY]... FILE...",
        "Parses documents one after another, as consecutive fetches of one feed. The exit status is 1 when the last one is no feed; a file "
        "that can't be read ends it.",
        {{"as", "KIND", "rss, rdf, atom or json: parse as that, without detection"},
            {"mark-read", "KEY", "after the first document, set the entries with that effective identifier to read"}},
        1, Command::anyNumber, run};
}

} // namespace brindle
