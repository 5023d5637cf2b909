#include "cli/JSONText.hpp"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;

/// What is nested deeper is indented no further, so that the text grows with what it holds alone.
constexpr std::size_t deepestIndentation = 64;

struct Level {
    const JSON* container;
    JSON::const_iterator next;
};

std::string compact(const JSON& value) {
    return value.dump(-1, ' ', false, JSON::error_handler_t::replace);
}

/// Writes a value that holds nothing, or opens one.
void begin(const JSON& value, std::vector<Level>& open, std::string& text) {
    if (!value.is_structured() || value.empty()) {
        text += compact(value);
        return;
    }
    text += value.is_array() ? '[' : '{';
    open.push_back({&value, value.begin()});
}

void startLine(std::size_t depth, std::string& text) {
    text += '\n';
    text.append(2 * std::min(depth, deepestIndentation), ' ');
}

} // namespace

std::string jsonText(const JSON& value) {
    std::string text;
    std::vector<Level> open;
    begin(value, open, text);
    while (!open.empty()) {
        Level& level = open.back();
        const bool isArray = level.container->is_array();
        if (level.next == level.container->end()) {
            open.pop_back();
            startLine(open.size(), text);
            text += isArray ? ']' : '}';
            continue;
        }
        if (level.next != level.container->begin())
            text += ',';
        startLine(open.size(), text);
        if (!isArray)
            text += compact(level.next.key()) + ": ";
        const JSON& element = *level.next;
        ++level.next;
        begin(element, open, text);
    }
    text += '\n';
    return text;
}

std::string jsonLine(const JSON& value) {
    return compact(value) + '\n';
}

} // namespace brindle
