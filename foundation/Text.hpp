#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Operations on UTF-8 text that know Unicode. None depends on the C locale; malformed input is read as U+FFFD where it must be read at
/// all. Thread: any.
namespace brindle::text {

/// `text` without white space and new lines at both ends (Unicode White_Space and the C0/C1 new lines). A view into the argument.
std::string_view trimmed(std::string_view text);

/// As `trimmed`, also without characters that Unicode does not assign or forbids (noncharacters, private surrogates, U+FFFE, controls but
/// tab and new lines).
std::string_view trimmedOfIllegalCharacters(std::string_view text);

/// Full Unicode lower case, independent of the locale ("İ" aside, which Unicode lowers to two characters).
std::string lowercased(std::string_view text);

/// Lower case of A to Z only; every other byte stays.
std::string lowercasedASCII(std::string_view text);

/// Case- and diacritic-folded form for searching: NFD, nonspacing marks removed, case folded. "Émile" and "emile" fold alike.
/// Text a contains text b, case and diacritics aside, when folded(a).find(folded(b)) != npos.
std::string folded(std::string_view text);

/// The number of user-perceived characters (extended grapheme clusters, UAX #29). CR LF is one.
std::size_t characterCount(std::string_view text);

/// The first `count` user-perceived characters of `text`, counted as by `characterCount`; all of it when it has no more. A view into the
/// argument.
std::string_view prefix(std::string_view text, std::size_t count);

/// The byte offset of the UTF-16 position `units` in `text` (a position inside a surrogate pair counts as the pair's start);
/// the text's size when it is shorter. What the platform's ranges, counted in UTF-16 units, mean on UTF-8.
std::size_t offsetOfUTF16(std::string_view text, std::size_t units);

/// The signed decimal integer (optional "+" or "-", then digits) that is the whole of `text`; absent for anything else, also when it does
/// not fit.
std::optional<std::int64_t> integer(std::string_view text);

/// The integer at the start of `text`, leading white space skipped, trailing text ignored; 0 when there is none, the nearest limit when it
/// does not fit.
std::int64_t lenientInteger(std::string_view text);

} // namespace brindle::text
