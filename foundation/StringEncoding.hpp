#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// The encodings that bytes from outside are decoded by. Text inside the program is always UTF-8.
enum class StringEncoding { utf8, isoLatin1 };

/// The name of an encoding as the IANA registry has it, in lower case: "utf-8", "iso-8859-1".
std::string_view name(StringEncoding encoding);

/// Whether every byte sequence is well-formed UTF-8 (RFC 3629: no surrogates, no overlong forms, nothing above U+10FFFF).
bool isValidUTF8(std::string_view bytes);

/// Decodes the whole of `bytes`; absent when they are not valid in the encoding. Every byte sequence is valid ISO Latin 1.
std::optional<std::string> decode(std::string_view bytes, StringEncoding encoding);

/// Encodes UTF-8 `text`; absent when a character has no place in the encoding.
std::optional<std::string> encode(std::string_view text, StringEncoding encoding);

/// As `encode`, but writes each character that has no place in the encoding as an XML numeric character reference ("&#8217;").
/// Nothing is lost when the bytes are markup.
std::string encodeMarkup(std::string_view text, StringEncoding encoding);

} // namespace brindle
