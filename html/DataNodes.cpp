#include "html/DataNodes.hpp"

#include "html/AsciiText.hpp"

namespace brindle::html {

bool XmlDeclaration::isXmlDeclaration() const noexcept {
    constexpr std::string_view target = "xml";
    return _opener == '?' && _text.starts_with(target) && (_text.size() == target.size() || isAsciiWhitespace(_text[target.size()]));
}

} // namespace brindle::html
