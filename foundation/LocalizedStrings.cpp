#include "foundation/LocalizedStrings.hpp"

#include "foundation/FileManager.hpp"
#include "foundation/StringEncoding.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <unicode/locid.h>
#include <utility>

namespace brindle {

namespace fs = std::filesystem;

namespace {

using Table = LocalizedStrings::Table;
using Error = LocalizedStrings::Error;

constexpr std::string_view fallbackName = "en";

/// Never destroyed: texts may be asked for until the process is gone.
Table& processTable() {
    static Table& table = *new Table;
    return table;
}

void appendUTF8(std::string& text, std::uint32_t code) {
    const auto append = [&](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (code < 0x80)
        return append(code);
    if (code < 0x800) {
        append(0xC0 | code >> 6);
    } else {
        if (code < 0x10000) {
            append(0xE0 | code >> 12);
        } else {
            append(0xF0 | code >> 18);
            append(0x80 | (code >> 12 & 0x3F));
        }
        append(0x80 | (code >> 6 & 0x3F));
    }
    append(0x80 | (code & 0x3F));
}

/// Reads a table's text from its front. The first fault is kept, and ends the reading.
class Reader {
public:
    explicit Reader(std::string_view text) : _text(text) {}

    tl::expected<Table, Error> table() {
        Table table;
        for (skipSpace(); !isAtEnd() && !_fault; skipSpace()) {
            std::string key = quoted("A key");
            expect('=');
            std::string value = quoted("A text");
            expect(';');
            table.insert_or_assign(std::move(key), std::move(value));
        }
        if (_fault)
            return tl::unexpected(*std::move(_fault));
        return table;
    }

private:
    bool isAtEnd() const { return _place == _text.size(); }
    std::string_view rest() const { return _text.substr(_place); }

    void fail(std::string message) {
        const auto lines = std::count(_text.begin(), _text.begin() + static_cast<std::ptrdiff_t>(_place), '\n');
        if (!_fault)
            _fault = Error{static_cast<std::size_t>(lines) + 1, std::move(message)};
    }

    void skipSpace() {
        for (;;) {
            _place = std::min(_text.find_first_not_of(" \t\r\n", _place), _text.size());
            std::string_view ending;
            if (rest().starts_with("//"))
                ending = "\n";
            else if (rest().starts_with("/*"))
                ending = "*/";
            else
                return;
            const std::size_t end = _text.find(ending, _place + 2);
            if (end == std::string_view::npos && ending == "*/")
                return fail("A comment has no end");
            _place = std::min(end, _text.size() - ending.size()) + ending.size();
        }
    }

    void expect(char character) {
        skipSpace();
        if (_fault)
            return;
        if (isAtEnd() || _text[_place] != character)
            return fail(std::string("A '") + character + "' is due");
        ++_place;
    }

    std::string quoted(std::string_view what) {
        skipSpace();
        std::string text;
        if (_fault)
            return text;
        if (!rest().starts_with('"')) {
            fail(std::string(what) + " is due, in quotation marks");
            return text;
        }
        const std::size_t begin = _place++;
        while (!isAtEnd() && !_fault) {
            const char character = _text[_place++];
            if (character == '"')
                return text;
            if (character == '\\')
                appendEscaped(text);
            else
                text.push_back(character);
        }
        _place = _fault ? _place : begin;
        fail("A text has no end");
        return text;
    }

    /// Appends what the escape stands for whose backslash was read.
    void appendEscaped(std::string& text) {
        constexpr std::string_view names = "\"\\nrt";
        constexpr std::string_view characters = "\"\\\n\r\t";
        const char name = isAtEnd() ? '\0' : _text[_place];
        if (const std::size_t known = names.find(name); known != std::string_view::npos) {
            ++_place;
            text.push_back(characters[known]);
        } else if (const auto code = unicodeEscape()) {
            appendUTF8(text, *code);
        } else {
            fail("An escape is unknown");
        }
    }

    /// The character of \uXXXX, or of the two that make a surrogate pair, whose first backslash was read.
    std::optional<std::uint32_t> unicodeEscape() {
        const auto first = unit();
        if (!first || *first < 0xD800 || *first > 0xDFFF)
            return first;
        if (*first > 0xDBFF || !rest().starts_with('\\'))
            return std::nullopt;
        ++_place;
        const auto second = unit();
        if (!second || *second < 0xDC00 || *second > 0xDFFF)
            return std::nullopt;
        return 0x10000 + ((*first - 0xD800) << 10) + (*second - 0xDC00);
    }

    std::optional<std::uint32_t> unit() {
        constexpr std::size_t digits = 4;
        if (rest().size() < 1 + digits || (rest()[0] != 'u' && rest()[0] != 'U'))
            return std::nullopt;
        const char* const begin = rest().data() + 1;
        std::uint32_t value = 0;
        const auto result = std::from_chars(begin, begin + digits, value, 16);
        if (result.ec != std::errc() || result.ptr != begin + digits)
            return std::nullopt;
        _place += 1 + digits;
        return value;
    }

    std::string_view _text;
    std::size_t _place = 0;
    std::optional<Error> _fault;
};

fs::path fileOf(const fs::path& folder, std::string_view name) {
    return folder / (std::string(name) + ".strings");
}

/// The name of the first table in the folder that suits one of the languages, else of the fallback.
std::string bestName(const fs::path& folder, const std::vector<std::string>& languages) {
    for (const std::string& language : languages) {
        for (const std::string& name : LocalizedStrings::tableNames(language)) {
            if (FileManager::fileExists(fileOf(folder, name)))
                return name;
        }
    }
    return std::string(fallbackName);
}

tl::expected<Table, Error> read(const fs::path& file) {
    const auto bytes = FileManager::contents(file);
    if (!bytes)
        return tl::unexpected(Error{0, bytes.error().message});
    return LocalizedStrings::parse(*bytes).map_error([&](Error error) {
        return Error{error.line, file.filename().string() + ": " + error.message};
    });
}

} // namespace

tl::expected<Table, Error> LocalizedStrings::parse(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (!isValidUTF8(bytes))
        return tl::unexpected(Error{0, "A table of texts is not in UTF-8"});
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    return Reader(bytes).table();
}

std::vector<std::string> LocalizedStrings::tableNames(std::string_view language) {
    icu::Locale locale = icu::Locale::createCanonical(std::string(language).c_str());
    UErrorCode status = U_ZERO_ERROR;
    locale.addLikelySubtags(status);
    if (U_FAILURE(status) || locale.isBogus())
        return {};
    const std::string name = locale.getLanguage();
    const std::string script = locale.getScript();
    const std::string region = locale.getCountry();
    std::vector<std::string> names;
    for (const std::string& candidate : {name + '-' + script + '-' + region, name + '-' + script, name + '-' + region, name}) {
        // A part that is unknown leaves its hyphen.
        if (!candidate.empty() && !candidate.ends_with('-') && candidate.find("--") == std::string::npos)
            names.push_back(candidate);
    }
    return names;
}

tl::expected<void, Error> LocalizedStrings::load(const fs::path& folder, const std::vector<std::string>& languages) {
    const std::string name = bestName(folder, languages);
    auto table = read(fileOf(folder, name));
    if (!table)
        return tl::unexpected(table.error());
    if (name != fallbackName) {
        auto fallback = FileManager::fileExists(fileOf(folder, fallbackName)) ? read(fileOf(folder, fallbackName)) : Table();
        if (!fallback)
            return tl::unexpected(fallback.error());
        table->merge(*fallback);
    }
    set(*std::move(table));
    return {};
}

void LocalizedStrings::set(Table table) {
    processTable() = std::move(table);
}

std::string localized(std::string_view key) {
    const Table& table = processTable();
    const auto found = table.find(std::string(key));
    return found == table.end() ? std::string(key) : found->second;
}

} // namespace brindle
