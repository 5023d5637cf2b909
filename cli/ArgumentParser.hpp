#pragma once

#include "cli/CommandResult.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <utility>
#include <vector>

namespace brindle {

/// An option that a command line may hold: `--name`, and a value where one is named.
struct Option {
    std::string_view name;      ///< without the dashes
    std::string_view valueName; ///< empty: the option takes no value
    std::string_view help;      ///< one line
};

/// What a command line said.
struct Arguments {
    std::vector<std::pair<std::string, std::string>> options; ///< name and value, in the order given
    std::vector<std::string> plain;                           ///< the arguments that are no options

    bool has(std::string_view name) const;
    /// The last one given; absent when there is none.
    std::optional<std::string> value(std::string_view name) const;
    std::vector<std::string> values(std::string_view name) const;
    /// The value of an option as a whole number from `least` to `most`, or `otherwise` where the option is not given.
    tl::expected<std::int64_t, CommandError> number(
        std::string_view name, std::int64_t least, std::int64_t most, std::int64_t otherwise) const;
};

/// Reads a command line from its front. Options are `--name`, `--name value` and `--name=value`, anywhere among the arguments; `--` makes
/// arguments of all that follows; `-` alone is an argument.
class ArgumentParser {
public:
    explicit ArgumentParser(std::vector<std::string> words) : _words(std::move(words)) {}

    /// Takes options up to the first argument.
    tl::expected<void, CommandError> takeLeadingOptions(const std::vector<Option>& known, Arguments& arguments);
    /// Takes the word at the front; absent at the end.
    std::optional<std::string> takeWord();
    /// Takes all that is left.
    tl::expected<void, CommandError> takeAll(const std::vector<Option>& known, Arguments& arguments);

private:
    bool isAtOption() const;
    tl::expected<void, CommandError> takeOption(const std::vector<Option>& known, Arguments& arguments);

    std::vector<std::string> _words;
    std::size_t _next = 0;
    bool _optionsEnded = false;
};

/// A decimal number from `least` to `most` that is the whole of `text`; `what` names it in the error.
tl::expected<std::int64_t, CommandError> numberArgument(
    std::string_view what, std::string_view text, std::int64_t least, std::int64_t most);

} // namespace brindle
