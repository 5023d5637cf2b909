#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <unordered_map>
#include <vector>

namespace brindle {

/// The texts that a person reads, by key, in that person's language. The process has one table of them. Thread: main sets the table before
/// other threads run; read from any.
///
/// A table is a file in the original platform's form, in UTF-8: `"key" = "text";`, as often as there are texts, with comments of both of
/// C's forms between. Known escapes: \" \\ \n \r \t, and \uXXXX or \UXXXX, a UTF-16 unit. Of a key's texts, the last counts.
class LocalizedStrings {
public:
    using Table = std::unordered_map<std::string, std::string>;

    struct Error {
        std::size_t line = 0; ///< from 1; 0: the file as a whole
        std::string message;
    };

    static tl::expected<Table, Error> parse(std::string_view bytes);

    /// The names of the tables that suit a language, by its ICU identifier, the best first: "zh-Hans-CN", "zh-Hans", "zh-CN", "zh" for
    /// "zh_CN".
    static std::vector<std::string> tableNames(std::string_view language);

    /// Makes the first of the user's languages that `folder` has a table for (its name and ".strings") the process's; texts that it lacks,
    /// and all where there is none, are those of "en.strings". On failure the process's table stays.
    static tl::expected<void, Error> load(const std::filesystem::path& folder, const std::vector<std::string>& languages);

    /// Replaces the process's table.
    static void set(Table table);
};

/// The text of a key; the key itself where the process's table has none.
std::string localized(std::string_view key);

} // namespace brindle
