#include "html/Tag.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace brindle::html {

namespace {

constexpr std::uint16_t laidOut = Tag::usualFlags;
constexpr std::uint16_t runIn = Tag::usualFlags & ~Tag::formattedAsBlock;
constexpr std::uint16_t voided = Tag::empty;
constexpr std::uint16_t preserving = Tag::whitespacePreserved;
constexpr std::uint16_t listed = Tag::formListed;
constexpr std::uint16_t submitted = Tag::formSubmitted;

struct KnownTag {
    std::string_view name;
    std::uint16_t flags;
};

constexpr KnownTag known(std::string_view name, int flags) {
    return {name, static_cast<std::uint16_t>(flags)};
}

// Sorted by name. Kept as is: inline elements such as "b" are laid out on lines of their own as well; what is written here is read by
// a strict reader and not shown, and the feed readers above rely on which elements carry white space around their text.
constexpr std::array descriptions = {
    known("a", runIn),
    known("abbr", laidOut),
    known("acronym", laidOut),
    known("address", runIn),
    known("applet", laidOut),
    known("area", laidOut | voided),
    known("article", laidOut),
    known("aside", laidOut),
    known("audio", laidOut),
    known("b", laidOut),
    known("base", laidOut | voided),
    known("basefont", laidOut | voided),
    known("bdi", laidOut),
    known("bdo", laidOut),
    known("bgsound", laidOut | voided),
    known("big", laidOut),
    known("blink", laidOut),
    known("blockquote", laidOut),
    known("body", laidOut),
    known("br", laidOut | voided),
    known("button", laidOut | listed),
    known("canvas", laidOut),
    known("caption", laidOut),
    known("center", laidOut),
    known("cite", laidOut),
    known("code", laidOut),
    known("col", laidOut | voided),
    known("colgroup", laidOut),
    known("command", laidOut),
    known("data", laidOut),
    known("datalist", laidOut),
    known("dd", laidOut),
    known("del", runIn),
    known("details", laidOut),
    known("dfn", laidOut),
    known("dialog", laidOut),
    known("dir", laidOut),
    known("div", laidOut),
    known("dl", laidOut),
    known("dt", laidOut),
    known("em", laidOut),
    known("embed", laidOut | voided),
    known("fieldset", laidOut | listed),
    known("figcaption", laidOut),
    known("figure", laidOut),
    known("font", laidOut),
    known("footer", laidOut),
    known("form", laidOut),
    known("frame", laidOut | voided),
    known("frameset", laidOut),
    known("h1", runIn),
    known("h2", runIn),
    known("h3", runIn),
    known("h4", runIn),
    known("h5", runIn),
    known("h6", runIn),
    known("head", laidOut),
    known("header", laidOut),
    known("hgroup", laidOut),
    known("hr", laidOut | voided),
    known("html", laidOut),
    known("i", laidOut),
    known("iframe", laidOut),
    known("image", laidOut),
    known("img", laidOut | voided),
    known("input", laidOut | voided | listed | submitted),
    known("ins", runIn),
    known("kbd", laidOut),
    known("keygen", laidOut | voided | listed | submitted),
    known("label", laidOut),
    known("legend", laidOut),
    known("li", runIn),
    known("link", laidOut | voided),
    known("listing", laidOut | preserving),
    known("main", laidOut),
    known("map", laidOut),
    known("mark", laidOut),
    known("marquee", laidOut),
    known("math", laidOut),
    known("menu", laidOut),
    known("menuitem", laidOut),
    known("meta", laidOut | voided),
    known("meter", laidOut),
    known("nav", laidOut),
    known("nobr", laidOut),
    known("noembed", laidOut),
    known("noframes", laidOut),
    known("noscript", laidOut),
    known("object", laidOut | listed | submitted),
    known("ol", laidOut),
    known("optgroup", laidOut),
    known("option", laidOut),
    known("output", laidOut | listed),
    known("p", runIn),
    known("param", laidOut | voided),
    known("picture", laidOut),
    known("plaintext", laidOut | preserving),
    known("pre", runIn | preserving),
    known("progress", laidOut),
    known("q", laidOut),
    known("rb", laidOut),
    known("rp", laidOut),
    known("rt", laidOut),
    known("rtc", laidOut),
    known("ruby", laidOut),
    known("s", runIn),
    known("samp", laidOut),
    known("script", runIn),
    known("search", laidOut),
    known("section", laidOut),
    known("select", laidOut | listed | submitted),
    known("selectedcontent", Tag::unknownFlags),
    known("slot", laidOut),
    known("small", laidOut),
    known("source", laidOut | voided),
    known("span", laidOut),
    known("strike", laidOut),
    known("strong", laidOut),
    known("style", runIn),
    known("sub", laidOut),
    known("summary", laidOut),
    known("sup", laidOut),
    known("svg", laidOut),
    known("table", laidOut),
    known("tbody", laidOut),
    known("td", runIn),
    known("template", laidOut),
    known("textarea", laidOut | preserving | listed | submitted),
    known("tfoot", laidOut),
    known("th", runIn),
    known("thead", laidOut),
    known("time", laidOut),
    known("title", runIn),
    known("tr", laidOut),
    known("track", laidOut | voided),
    known("tt", laidOut),
    known("u", laidOut),
    known("ul", laidOut),
    known("var", laidOut),
    known("video", laidOut),
    known("wbr", laidOut | voided),
    known("xmp", laidOut | preserving),
};

static_assert(descriptions.size() + 1 == tagIdCount);
static_assert(
    std::is_sorted(descriptions.begin(), descriptions.end(), [](const KnownTag& a, const KnownTag& b) { return a.name < b.name; }));

template <std::size_t... indices>
constexpr auto tagsOf(std::index_sequence<indices...> /*indices*/) {
    return std::array{
        Tag(descriptions[indices].name, descriptions[indices].name, descriptions[indices].flags, static_cast<TagId>(indices + 1))...};
}

/// Sorted by name, as the values of `TagId` are.
constexpr auto knownTags = tagsOf(std::make_index_sequence<descriptions.size()>());

constexpr bool isBefore(const Tag& tag, std::string_view name) noexcept {
    return tag.name() < name;
}

} // namespace

const Tag* Tag::known(std::string_view name) noexcept {
    const auto* const found = std::lower_bound(knownTags.begin(), knownTags.end(), name, isBefore);
    return found != knownTags.end() && found->name() == name ? found : nullptr;
}

const Tag& Tag::known(TagId id) noexcept {
    return knownTags[static_cast<std::size_t>(id) - 1];
}

} // namespace brindle::html
