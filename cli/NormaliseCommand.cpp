#include "cli/NormaliseCommand.hpp"

#include "Brindle/shell/FeedURL.hpp"
#include "SyndicatedParser/FeedDate.hpp"
#include "SyndicatedParser/Normalisation.hpp"
#include "cli/Input.hpp"

#include <array>
#include <optional>
#include <string>
#include <utility>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;
using Text = std::optional<std::string>;
using Base = std::optional<URL>;

Text textOf(const std::optional<URL>& url) {
    return url ? std::optional(url->absoluteString()) : std::nullopt;
}

Text normaliseDate(const std::string& text) {
    const auto date = parseFeedDate(text);
    return date ? std::optional(iso8601String(*date)) : std::nullopt;
}

Text normaliseFeedURL(const std::string& text) {
    const auto url = URL::make(text);
    return url ? textOf(normalizedFeedURL(*url)) : std::nullopt;
}

/// The operations by their names.
constexpr std::array<std::pair<std::string_view, Text (*)(const std::string&, const Base&)>, 5> operations = {{
    {"tags", [](const std::string& text, const Base&) -> Text { return removingHTMLTags(text); }},
    {"entities", [](const std::string& text, const Base&) -> Text { return stringByRemovingHTMLEntities(text); }},
    {"url", [](const std::string& text, const Base& base) -> Text { return textOf(sanitizedURL(base, text)); }},
    {"date", [](const std::string& text, const Base&) -> Text { return normaliseDate(text); }},
    {"feedurl", [](const std::string& text, const Base&) -> Text { return normaliseFeedURL(text); }},
}};

CommandResult print(const CommandContext& context, const Text& result) {
    if (context.settings.json) {
        JSON json = JSON::object();
        json["result"] = result ? JSON(*result) : JSON();
        context.output.json(json);
    } else if (result) {
        context.output.document(*result);
    }
    return ExitStatus::done;
}

CommandResult run(const CommandContext& context) {
    const std::string& name = context.arguments.plain[0];
    Base base;
    if (const auto text = context.arguments.value("base")) {
        base = URL::make(*text);
        if (!base)
            return wrongUsage("normalise: --base takes a URL, not '" + *text + "'");
    }
    for (const auto& [known, operation] : operations) {
        if (known != name)
            continue;
        std::string text = context.arguments.plain[1];
        if (text == "-") {
            auto bytes = readInput(text);
            if (!bytes)
                return tl::unexpected(bytes.error());
            text = *std::move(bytes);
        }
        return print(context, operation(text, base));
    }
    return wrongUsage("normalise: unknown operation '" + name + "'");
}

} // namespace

Command normaliseCommand() {
    return {"normalise", "tags|entities|url|date|feedurl [--base URL] TEXT",
        "Cleans a text as feeds' texts are cleaned. A TEXT of - is standard input, taken whole. Nothing is printed where no value comes of "
        "it.",
        {{"base", "URL", "what a relative url is resolved against"}}, 2, 2, run};
}

} // namespace brindle
