#pragma once

#include "foundation/URL.hpp"

#include <optional>
#include <string>
#include <string_view>

/// The lenient cleaning that texts of feeds go through. Nothing here fails: where no value can be made the result is absent, or the
/// input. Linear in the size of the text. Thread: any.
namespace brindle {

/// A URL from a text with white space around it, resolved against `base` where it is relative. A relative text without a base prints
/// "Can't sanatize URL. Base URL is missing!" and stays relative.
std::optional<URL> sanitizedURL(const std::optional<URL>& base, std::string_view text);

/// `text` without the tags that pair up in it, by literal replacement. No entity is decoded.
std::string removingHTMLTags(std::string_view text);

/// `text` with its named and numeric character references decoded, once. References need their ";".
std::string stringByRemovingHTMLEntities(std::string_view text);

} // namespace brindle
