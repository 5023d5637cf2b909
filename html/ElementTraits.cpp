#include "html/ElementTraits.hpp"

#include <initializer_list>

#include "html/AsciiText.hpp"

namespace brindle::html {

namespace {

using enum TagId;
using Ids = std::initializer_list<TagId>;

/// The boundaries of each scope that is "the usual one and more".
constexpr ElementTraits everyScope =
    traits::bounds(Boundary::scope) | traits::bounds(Boundary::listItemScope) | traits::bounds(Boundary::buttonScope);

constexpr Ids specialIds = {address, applet, area, article, aside, base, basefont, bgsound, blockquote, body, br, button, caption, center,
    col, colgroup, dd, details, dir, div, dl, dt, embed, fieldset, figcaption, figure, footer, form, frame, frameset, h1, h2, h3, h4, h5,
    h6, head, header, hgroup, hr, html, iframe, img, input, keygen, li, link, listing, main, marquee, menu, meta, nav, noembed, noframes,
    noscript, object, ol, p, param, plaintext, pre, script, search, section, select, source, style, summary, table, tbody, td,
    templateElement, textarea, tfoot, th, thead, title, tr, track, ul, wbr, xmp};

constexpr Ids scopeIds = {applet, caption, html, table, td, th, marquee, object, select, templateElement};
constexpr Ids impliedEndIds = {dd, dt, li, optgroup, option, p, rb, rp, rt, rtc};
constexpr Ids insertionModeIds = {td, th, tr, tbody, thead, tfoot, caption, colgroup, table, templateElement, head, body, frameset, html};
constexpr Ids breakoutIds = {b, big, blockquote, body, br, center, code, dd, div, dl, dt, em, embed, h1, h2, h3, h4, h5, h6, head, hr, i,
    img, li, listing, menu, meta, nobr, ol, p, pre, ruby, s, small, span, strong, strike, sub, sup, table, tt, u, ul, var};

struct Table {
    std::array<ElementTraits, tagIdCount> traits{};

    constexpr void add(ElementTraits bits, Ids ids) {
        for (const TagId id : ids) {
            traits[static_cast<std::size_t>(id)] |= bits;
        }
    }

    constexpr void remove(ElementTraits bits, Ids ids) {
        for (const TagId id : ids) {
            traits[static_cast<std::size_t>(id)] &= ~bits;
        }
    }
};

constexpr Table htmlTable = [] {
    Table table;
    table.add(traits::special | traits::bounds(Boundary::listItem), specialIds);
    table.remove(traits::bounds(Boundary::listItem), {address, div, p});
    table.add(everyScope, scopeIds);
    table.add(traits::bounds(Boundary::listItemScope), {ol, ul});
    table.add(traits::bounds(Boundary::buttonScope), {button});
    table.add(traits::bounds(Boundary::tableScope), {html, TagId::table, templateElement});
    table.add(traits::bounds(Boundary::insertionMode), insertionModeIds);
    table.add(traits::impliedEnd, impliedEndIds);
    table.add(traits::fosters, {TagId::table, tbody, tfoot, thead, tr});
    table.add(traits::heading, {h1, h2, h3, h4, h5, h6});
    table.add(traits::breaksOutOfForeign, breakoutIds);
    table.add(traits::selectPart, {select, option, selectedcontent});
    return table;
}();

/// What all integration points are, and `annotation-xml` as well.
constexpr ElementTraits foreignSpecial = traits::special | traits::bounds(Boundary::listItem) | everyScope;

ElementTraits traitsOfMathMl(const Element& element) noexcept {
    const std::string_view name = element.tagName();
    if (name == "mi" || name == "mo" || name == "mn" || name == "ms" || name == "mtext") {
        return foreignSpecial | traits::mathMlTextIntegrationPoint;
    }
    if (name != "annotation-xml") {
        return 0;
    }
    const Attribute* const encoding = element.attributes().find("encoding");
    const bool holdsHtml = encoding != nullptr && (equalsIgnoringAsciiCase(encoding->value, "text/html") ||
                                                      equalsIgnoringAsciiCase(encoding->value, "application/xhtml+xml"));
    return foreignSpecial | traits::annotation | (holdsHtml ? traits::htmlIntegrationPoint : 0);
}

} // namespace

const std::array<ElementTraits, tagIdCount> htmlElementTraits = htmlTable.traits;

ElementTraits traitsOfForeign(const Element& element) noexcept {
    if (element.vocabulary() == Element::Vocabulary::mathMl) {
        return traitsOfMathMl(element);
    }
    const std::string_view name = element.tagName();
    const bool isPoint = name == "foreignObject" || name == "desc" || name == "title";
    return isPoint ? foreignSpecial | traits::htmlIntegrationPoint : 0;
}

} // namespace brindle::html
