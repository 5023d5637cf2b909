#include "cli/PreferenceCommand.hpp"

#include "Brindle/shell/Preferences.hpp"
#include "cli/PreferenceStore.hpp"
#include "cli/TextTable.hpp"
#include "foundation/Color.hpp"
#include "foundation/Text.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;
using Kind = Preference::Kind;

/// A number that was stored for a text is read as its digits.
JSON textJSON(const UserDefaults& defaults, std::string_view key) {
    const auto value = defaults.object(key);
    if (!value)
        return nullptr;
    if (const auto* const integer = std::get_if<std::int64_t>(&*value))
        return std::to_string(*integer);
    const auto* const text = std::get_if<std::string>(&*value);
    return text != nullptr ? JSON(*text) : JSON();
}

/// What stands under a key; null where that is nothing.
JSON valueJSON(const UserDefaults& defaults, const Preference& preference) {
    switch (preference.kind) {
    case Kind::boolean:
        return defaults.boolForKey(preference.key);
    case Kind::integer:
        return defaults.integerForKey(preference.key);
    case Kind::number:
        return defaults.doubleForKey(preference.key);
    case Kind::text:
        return textJSON(defaults, preference.key);
    case Kind::color:
        break;
    }
    const auto color = Color::unarchive(defaults.dataForKey(preference.key).value_or(std::string()));
    return color ? JSON(color->hexString()) : JSON();
}

/// The value alone, for people and for scripts.
std::string valueText(const UserDefaults& defaults, const Preference& preference) {
    const JSON value = valueJSON(defaults, preference);
    if (value.is_null())
        return {};
    if (value.is_string())
        return value.get<std::string>();
    // A number that is whole is written so.
    if (value.is_number_float() && std::nearbyint(value.get<double>()) == value.get<double>() && std::abs(value.get<double>()) < 0x1p53)
        return std::to_string(static_cast<std::int64_t>(value.get<double>()));
    return value.dump();
}

JSON preferenceJSON(const UserDefaults& defaults, const Preference& preference) {
    JSON json = JSON::object();
    json["key"] = preference.key;
    json["kind"] = name(preference.kind);
    json["value"] = valueJSON(defaults, preference);
    json["isDefault"] = defaults.isDefault(preference.key);
    return json;
}

std::optional<double> finiteNumber(std::string_view text) {
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return isWhole && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

template <typename T>
std::optional<UserDefaults::Value> value(std::optional<T> plain) {
    return plain ? std::optional<UserDefaults::Value>(*std::move(plain)) : std::nullopt;
}

/// The value that a text gives by a preference's kind; absent when it gives none.
std::optional<UserDefaults::Value> valueOf(const std::string& text, Kind kind) {
    switch (kind) {
    case Kind::boolean:
        return text == "true" || text == "false" ? value(std::optional(text == "true")) : std::nullopt;
    case Kind::integer:
        return value(text::integer(text));
    case Kind::number:
        return value(finiteNumber(text));
    case Kind::text:
        return value(std::optional(text));
    case Kind::color:
        break;
    }
    const auto color = Color::make(text);
    auto archived = color ? color->archivedData() : tl::unexpected(PropertyList::Error{});
    return archived ? value(std::optional(PropertyList::Data{*std::move(archived)})) : std::nullopt;
}

std::string_view expectation(Kind kind) {
    switch (kind) {
    case Kind::boolean:
        return "true or false";
    case Kind::integer:
        return "a whole number";
    case Kind::number:
        return "a number";
    case Kind::text:
        return "a text";
    case Kind::color:
        break;
    }
    return "a colour like #1e90ff";
}

CommandResult list(const CommandContext& context, const UserDefaults& defaults) {
    if (context.settings.json) {
        JSON array = JSON::array();
        for (const Preference& preference : preferences())
            array.push_back(preferenceJSON(defaults, preference));
        context.output.json(array);
        return ExitStatus::done;
    }
    TextTable table({"Key", "Value"});
    for (const Preference& preference : preferences())
        table.add({std::string(preference.key), valueText(defaults, preference)});
    context.output.text(table.text());
    return ExitStatus::done;
}

CommandResult print(const CommandContext& context, const UserDefaults& defaults, const Preference& preference) {
    if (context.settings.json)
        context.output.json(preferenceJSON(defaults, preference));
    else
        context.output.text(valueText(defaults, preference) + '\n');
    return ExitStatus::done;
}

/// Prints what stands under the key now that it was changed.
CommandResult printChanged(const CommandContext& context, UserDefaults& defaults, const Preference& preference) {
    if (const auto stored = defaults.synchronize(); !stored)
        return failure(stored.error().message);
    return print(context, defaults, preference);
}

CommandResult runForKey(const CommandContext& context, UserDefaults& defaults, const std::string& action, const std::string& key) {
    const std::vector<Preference> table = preferences();
    const auto preference = std::find_if(table.begin(), table.end(), [&](const Preference& row) { return row.key == key; });
    if (preference == table.end())
        return wrongUsage("prefs: there is no preference '" + key + "'");
    if (action == "get")
        return print(context, defaults, *preference);
    if (action == "reset") {
        defaults.removeObject(preference->key);
        return printChanged(context, defaults, *preference);
    }
    const std::string& text = context.arguments.plain[2];
    auto value = valueOf(text, preference->kind);
    if (!value)
        return wrongUsage("prefs: " + key + " takes " + std::string(expectation(preference->kind)) + ", not '" + text + "'");
    defaults.set(preference->key, *std::move(value));
    return printChanged(context, defaults, *preference);
}

CommandResult run(const CommandContext& context) {
    const std::vector<std::string>& words = context.arguments.plain;
    const std::string& action = words.front();
    const std::size_t wanted = action == "list" ? 1 : action == "get" || action == "reset" ? 2 : action == "set" ? 3 : 0;
    if (wanted != words.size())
        return wrongUsage("prefs takes list, get KEY, set KEY VALUE or reset KEY");
    const auto defaults = openPreferences(context.settings);
    if (!defaults)
        return tl::unexpected(defaults.error());
    return action == "list" ? list(context, **defaults) : runForKey(context, **defaults, action, words[1]);
}

} // namespace

Command preferenceCommand() {
    return {"prefs", "list|get KEY|set KEY VALUE|reset KEY", "Shows or changes the preferences.", {}, 1, 3, run};
}

} // namespace brindle
