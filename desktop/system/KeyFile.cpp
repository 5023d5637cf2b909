#include "desktop/system/KeyFile.hpp"

#include "foundation/Text.hpp"

namespace brindle::desktop {

namespace {

std::string_view keyOf(std::string_view line) {
    const std::size_t sign = line.find('=');
    return line.starts_with('#') || sign == std::string_view::npos ? std::string_view() : text::trimmed(line.substr(0, sign));
}

} // namespace

KeyFile::KeyFile(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        _lines.emplace_back(text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
}

KeyFile::Place KeyFile::find(std::string_view group, std::string_view key) const {
    Place place;
    bool isInside = false;
    for (std::size_t i = 0; i < _lines.size(); ++i) {
        const std::string_view line = text::trimmed(_lines[i]);
        if (line.starts_with('[')) {
            // The first group of a name counts.
            isInside = !place.endOfGroup && line.ends_with(']') && line.substr(1, line.size() - 2) == group;
            if (isInside)
                place.endOfGroup = i + 1;
        } else if (isInside && !line.empty()) {
            place.endOfGroup = i + 1;
            if (!place.line && keyOf(line) == key)
                place.line = i;
        }
    }
    return place;
}

std::optional<std::string> KeyFile::value(std::string_view group, std::string_view key) const {
    const Place place = find(group, key);
    if (!place.line)
        return std::nullopt;
    const std::string_view line = _lines[*place.line];
    return std::string(text::trimmed(line.substr(line.find('=') + 1)));
}

std::vector<std::string> KeyFile::list(std::string_view group, std::string_view key) const {
    std::vector<std::string> parts;
    const std::string all = value(group, key).value_or(std::string());
    std::string_view rest = all;
    while (!rest.empty()) {
        const std::size_t end = rest.find(';');
        if (const std::string_view part = text::trimmed(rest.substr(0, end)); !part.empty())
            parts.emplace_back(part);
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    }
    return parts;
}

void KeyFile::set(std::string_view group, std::string_view key, std::string_view value) {
    const Place place = find(group, key);
    std::string line = std::string(key) + '=' + std::string(value);
    if (place.line) {
        _lines[*place.line] = std::move(line);
        return;
    }
    if (place.endOfGroup) {
        _lines.insert(_lines.begin() + static_cast<std::ptrdiff_t>(*place.endOfGroup), std::move(line));
        return;
    }
    if (!_lines.empty())
        _lines.emplace_back();
    _lines.push_back('[' + std::string(group) + ']');
    _lines.push_back(std::move(line));
}

std::string KeyFile::text() const {
    std::string result;
    for (const std::string& line : _lines)
        result += line + '\n';
    return result;
}

} // namespace brindle::desktop
