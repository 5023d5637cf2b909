#include "cli/ArgumentParser.hpp"

#include "foundation/Text.hpp"

#include <algorithm>

namespace brindle {

bool Arguments::has(std::string_view name) const {
    return std::any_of(options.begin(), options.end(), [&](const auto& option) { return option.first == name; });
}

std::optional<std::string> Arguments::value(std::string_view name) const {
    const auto last = std::find_if(options.rbegin(), options.rend(), [&](const auto& option) { return option.first == name; });
    return last == options.rend() ? std::nullopt : std::optional(last->second);
}

std::vector<std::string> Arguments::values(std::string_view name) const {
    std::vector<std::string> found;
    for (const auto& [option, value] : options) {
        if (option == name)
            found.push_back(value);
    }
    return found;
}

tl::expected<std::int64_t, CommandError> Arguments::number(
    std::string_view name, std::int64_t least, std::int64_t most, std::int64_t otherwise) const {
    const auto text = value(name);
    if (!text)
        return otherwise;
    return numberArgument("--" + std::string(name), *text, least, most);
}

bool ArgumentParser::isAtOption() const {
    const std::string& word = _words[_next];
    return !_optionsEnded && word.size() > 1 && word.front() == '-';
}

std::optional<std::string> ArgumentParser::takeWord() {
    return _next < _words.size() ? std::optional(_words[_next++]) : std::nullopt;
}

tl::expected<void, CommandError> ArgumentParser::takeLeadingOptions(const std::vector<Option>& known, Arguments& arguments) {
    while (_next < _words.size() && isAtOption()) {
        if (auto taken = takeOption(known, arguments); !taken)
            return taken;
    }
    return {};
}

tl::expected<void, CommandError> ArgumentParser::takeAll(const std::vector<Option>& known, Arguments& arguments) {
    while (_next < _words.size()) {
        if (!isAtOption())
            arguments.plain.push_back(*takeWord());
        else if (auto taken = takeOption(known, arguments); !taken)
            return taken;
    }
    return {};
}

tl::expected<void, CommandError> ArgumentParser::takeOption(const std::vector<Option>& known, Arguments& arguments) {
    const std::string word = takeWord().value_or(std::string());
    if (word == "--") {
        _optionsEnded = true;
        return {};
    }
    const std::size_t equals = word.find('=');
    const std::string spelling = word.substr(0, equals);
    const auto option = std::find_if(known.begin(), known.end(), [&](const Option& each) {
        return spelling.size() == each.name.size() + 2 && spelling.starts_with("--") && spelling.ends_with(each.name);
    });
    if (option == known.end())
        return wrongUsage("unknown option " + spelling);
    std::optional<std::string> value;
    if (equals != std::string::npos)
        value = word.substr(equals + 1);
    if (option->valueName.empty() && value)
        return wrongUsage("option " + spelling + " takes no value");
    if (!option->valueName.empty() && !value)
        value = takeWord();
    if (!option->valueName.empty() && !value)
        return wrongUsage("option " + spelling + " needs a value");
    arguments.options.emplace_back(option->name, value.value_or(std::string()));
    return {};
}

tl::expected<std::int64_t, CommandError> numberArgument(
    std::string_view what, std::string_view text, std::int64_t least, std::int64_t most) {
    const auto number = text::integer(text);
    if (!number || *number < least || *number > most)
        return wrongUsage(std::string(what) + " takes a whole number from " + std::to_string(least) + " to " + std::to_string(most) +
                          ", not '" + std::string(text) + "'");
    return *number;
}

} // namespace brindle
