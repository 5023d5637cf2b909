#include "html/DataNodes.hpp"

#include <algorithm>
#include <cstring>
#include <limits>

#include "html/AsciiText.hpp"

namespace brindle::html {

void TextNode::append(std::string_view more, Arena& arena) {
    if (more.size() <= _room) {
        // The room lies in memory that was allocated below, and was never handed out as constant.
        std::memcpy(const_cast<char*>(_text.data()) + _text.size(), more.data(), more.size());
        _text = {_text.data(), _text.size() + more.size()};
        _room -= static_cast<std::uint32_t>(more.size());
        return;
    }
    constexpr std::size_t mostRoom = std::numeric_limits<std::uint32_t>::max();
    const std::size_t size = _text.size() + more.size();
    const std::size_t room = std::min(size, mostRoom);
    char* const grown = static_cast<char*>(arena.allocate(size + room, 1));
    std::memcpy(grown, _text.data(), _text.size());
    std::memcpy(grown + _text.size(), more.data(), more.size());
    _text = {grown, size};
    _room = static_cast<std::uint32_t>(room);
}

bool XmlDeclaration::isXmlDeclaration() const noexcept {
    constexpr std::string_view target = "xml";
    return _opener == '?' && _text.starts_with(target) && (_text.size() == target.size() || isAsciiWhitespace(_text[target.size()]));
}

} // namespace brindle::html
