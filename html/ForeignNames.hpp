#pragma once

#include <optional>
#include <string_view>

#include "html/Element.hpp"

/// The names of SVG and MathML that are not what the tokeniser makes of them (HTML standard, section 13.2.6.1 and 13.2.6.5). Texts that are
/// given back either live for ever or are what was passed in. Safe on every thread.
namespace brindle::html {

/// The name of an element of SVG in its proper case, such as "foreignObject" for "foreignobject".
std::string_view adjustedSvgTagName(std::string_view name) noexcept;

/// The key of an attribute in its proper case, such as "viewBox" for "viewbox" in SVG.
std::string_view adjustedForeignKey(Element::Vocabulary vocabulary, std::string_view key) noexcept;

/// A key that stands for a name in a namespace of XML.
struct NamespacedKey {
    std::string_view prefix; ///< "xlink", "xml" or "xmlns".
    std::string_view localName;
};

/// What the key of a foreign element's attribute stands for if it has a namespace, such as "xlink:href".
std::optional<NamespacedKey> namespacedKey(std::string_view key) noexcept;

} // namespace brindle::html
