#include "foundation/JSONSerialization.hpp"

namespace brindle {

namespace {

/// Whether arrays and objects nest no deeper than the limit. Exact for valid JSON; what it says of any other text is of no matter, as that
/// is refused.
bool isShallow(std::string_view text) {
    std::size_t depth = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        switch (text[at]) {
        case '[':
        case '{':
            if (++depth > JSONSerialization::maximumDepth)
                return false;
            break;
        case ']':
        case '}':
            depth -= depth > 0;
            break;
        case '"':
            for (++at; at < text.size() && text[at] != '"'; ++at)
                at += text[at] == '\\';
            break;
        default:
            break;
        }
    }
    return true;
}

} // namespace

std::optional<nlohmann::json> JSONSerialization::object(std::string_view data) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (data.substr(0, byteOrderMark.size()) == byteOrderMark)
        data.remove_prefix(byteOrderMark.size());
    const std::size_t first = data.find_first_not_of(" \t\n\r");
    if (first == std::string_view::npos || (data[first] != '{' && data[first] != '[') || !isShallow(data))
        return std::nullopt;
    nlohmann::json value = nlohmann::json::parse(data, nullptr, false);
    if (value.is_discarded())
        return std::nullopt;
    return value;
}

} // namespace brindle
