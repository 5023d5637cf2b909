#include "html/ForeignNames.hpp"

#include <algorithm>
#include <array>

#include "html/AsciiText.hpp"

namespace brindle::html {

namespace {

// In the order of their lower case.

constexpr std::array svgTagNames = {
    std::string_view("altGlyph"),
    std::string_view("altGlyphDef"),
    std::string_view("altGlyphItem"),
    std::string_view("animateColor"),
    std::string_view("animateMotion"),
    std::string_view("animateTransform"),
    std::string_view("clipPath"),
    std::string_view("feBlend"),
    std::string_view("feColorMatrix"),
    std::string_view("feComponentTransfer"),
    std::string_view("feComposite"),
    std::string_view("feConvolveMatrix"),
    std::string_view("feDiffuseLighting"),
    std::string_view("feDisplacementMap"),
    std::string_view("feDistantLight"),
    std::string_view("feDropShadow"),
    std::string_view("feFlood"),
    std::string_view("feFuncA"),
    std::string_view("feFuncB"),
    std::string_view("feFuncG"),
    std::string_view("feFuncR"),
    std::string_view("feGaussianBlur"),
    std::string_view("feImage"),
    std::string_view("feMerge"),
    std::string_view("feMergeNode"),
    std::string_view("feMorphology"),
    std::string_view("feOffset"),
    std::string_view("fePointLight"),
    std::string_view("feSpecularLighting"),
    std::string_view("feSpotLight"),
    std::string_view("feTile"),
    std::string_view("feTurbulence"),
    std::string_view("foreignObject"),
    std::string_view("glyphRef"),
    std::string_view("linearGradient"),
    std::string_view("radialGradient"),
    std::string_view("textPath"),
};

constexpr std::array svgKeys = {
    std::string_view("attributeName"),
    std::string_view("attributeType"),
    std::string_view("baseFrequency"),
    std::string_view("baseProfile"),
    std::string_view("calcMode"),
    std::string_view("clipPathUnits"),
    std::string_view("diffuseConstant"),
    std::string_view("edgeMode"),
    std::string_view("filterUnits"),
    std::string_view("glyphRef"),
    std::string_view("gradientTransform"),
    std::string_view("gradientUnits"),
    std::string_view("kernelMatrix"),
    std::string_view("kernelUnitLength"),
    std::string_view("keyPoints"),
    std::string_view("keySplines"),
    std::string_view("keyTimes"),
    std::string_view("lengthAdjust"),
    std::string_view("limitingConeAngle"),
    std::string_view("markerHeight"),
    std::string_view("markerUnits"),
    std::string_view("markerWidth"),
    std::string_view("maskContentUnits"),
    std::string_view("maskUnits"),
    std::string_view("numOctaves"),
    std::string_view("pathLength"),
    std::string_view("patternContentUnits"),
    std::string_view("patternTransform"),
    std::string_view("patternUnits"),
    std::string_view("pointsAtX"),
    std::string_view("pointsAtY"),
    std::string_view("pointsAtZ"),
    std::string_view("preserveAlpha"),
    std::string_view("preserveAspectRatio"),
    std::string_view("primitiveUnits"),
    std::string_view("refX"),
    std::string_view("refY"),
    std::string_view("repeatCount"),
    std::string_view("repeatDur"),
    std::string_view("requiredExtensions"),
    std::string_view("requiredFeatures"),
    std::string_view("specularConstant"),
    std::string_view("specularExponent"),
    std::string_view("spreadMethod"),
    std::string_view("startOffset"),
    std::string_view("stdDeviation"),
    std::string_view("stitchTiles"),
    std::string_view("surfaceScale"),
    std::string_view("systemLanguage"),
    std::string_view("tableValues"),
    std::string_view("targetX"),
    std::string_view("targetY"),
    std::string_view("textLength"),
    std::string_view("viewBox"),
    std::string_view("viewTarget"),
    std::string_view("xChannelSelector"),
    std::string_view("yChannelSelector"),
    std::string_view("zoomAndPan"),
};

constexpr std::array mathMlKeys = {std::string_view("definitionURL")};

constexpr std::array xlinkNames = {std::string_view("actuate"), std::string_view("arcrole"), std::string_view("href"),
    std::string_view("role"), std::string_view("show"), std::string_view("title"), std::string_view("type")};

constexpr bool isBefore(std::string_view a, std::string_view b) noexcept {
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(), [](char left, char right) { return toAsciiLower(left) < toAsciiLower(right); });
}

static_assert(std::is_sorted(svgTagNames.begin(), svgTagNames.end(), isBefore));
static_assert(std::is_sorted(svgKeys.begin(), svgKeys.end(), isBefore));

/// The entry of `names` that is `lowered` in lower case, else `lowered`.
template <std::size_t size>
std::string_view adjusted(const std::array<std::string_view, size>& names, std::string_view lowered) noexcept {
    const auto* const found = std::lower_bound(names.begin(), names.end(), lowered, isBefore);
    return found != names.end() && equalsIgnoringAsciiCase(*found, lowered) ? *found : lowered;
}

} // namespace

std::string_view adjustedSvgTagName(std::string_view name) noexcept {
    return adjusted(svgTagNames, name);
}

std::string_view adjustedForeignKey(Element::Vocabulary vocabulary, std::string_view key) noexcept {
    return vocabulary == Element::Vocabulary::svg ? adjusted(svgKeys, key) : adjusted(mathMlKeys, key);
}

std::optional<NamespacedKey> namespacedKey(std::string_view key) noexcept {
    if (key == "xmlns") {
        return NamespacedKey{"xmlns", "xmlns"};
    }
    const std::size_t colon = key.find(':');
    if (colon == std::string_view::npos) {
        return std::nullopt;
    }
    const NamespacedKey parts{key.substr(0, colon), key.substr(colon + 1)};
    const std::string_view name = parts.localName;
    const bool isXlink = parts.prefix == "xlink" && std::find(xlinkNames.begin(), xlinkNames.end(), name) != xlinkNames.end();
    const bool isXml = parts.prefix == "xml" && (name == "lang" || name == "space");
    const bool isXmlns = parts.prefix == "xmlns" && name == "xlink";
    return isXlink || isXml || isXmlns ? std::optional(parts) : std::nullopt;
}

} // namespace brindle::html
