#include "cli/ImageSignatures.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace brindle {

namespace {

using namespace std::string_view_literals;

constexpr std::array signatures = {"\0\0\1\0"sv, "\0\0\2\0"sv, "BM"sv, "GIF87a"sv, "GIF89a"sv, "\x89PNG\r\n\x1A\n"sv, "\xFF\xD8\xFF"sv};

bool isWebP(std::string_view bytes) {
    return bytes.starts_with("RIFF") && bytes.substr(std::min<std::size_t>(bytes.size(), 8)).starts_with("WEBPVP");
}

} // namespace

std::optional<Image> ImageSignatures::decode(const std::string& bytes) {
    const bool isImage = isWebP(bytes) || std::any_of(signatures.begin(), signatures.end(),
                                              [&](std::string_view signature) { return bytes.starts_with(signature); });
    return isImage ? std::optional(Image::withData(bytes)) : std::nullopt;
}

} // namespace brindle
