#include "html/BodyRules.hpp"
#include "html/AsciiText.hpp"

// Section 13.2.6.4.7 of the HTML standard: texts, and which rule a tag in a body goes by.

namespace brindle::html {

constinit const BodyRules::Rules BodyRules::_startTagRules = [] {
    using enum TagId;
    return rulesOf(&BodyRules::startOrdinary,
        {
            {&BodyRules::startRootAgain, {html}},
            {&BodyRules::startOfHead, {base, basefont, bgsound, link, meta, noframes, script, style, templateElement, title}},
            {&BodyRules::startBodyAgain, {body}},
            {&BodyRules::startFrameset, {frameset}},
            {&BodyRules::startBlock, {address, article, aside, blockquote, center, details, dialog, dir, div, dl, fieldset, figcaption,
                                         figure, footer, header, hgroup, main, menu, nav, ol, p, search, section, summary, ul}},
            {&BodyRules::startHeading, {h1, h2, h3, h4, h5, h6}},
            {&BodyRules::startPreformatted, {pre, listing}},
            {&BodyRules::startForm, {form}},
            {&BodyRules::startListItem, {li, dd, dt}},
            {&BodyRules::startPlaintext, {plaintext}},
            {&BodyRules::startButton, {button}},
            {&BodyRules::startAnchor, {a}},
            {&BodyRules::startFormatting, {b, big, code, em, font, i, s, small, strike, strong, tt, u}},
            {&BodyRules::startNobr, {nobr}},
            {&BodyRules::startMarked, {applet, marquee, object}},
            {&BodyRules::startTable, {table}},
            {&BodyRules::startVoid, {area, br, embed, image, img, keygen, wbr}},
            {&BodyRules::startInput, {input}},
            {&BodyRules::startVoidInMedia, {param, source, track}},
            {&BodyRules::startRule, {hr}},
            {&BodyRules::startTextArea, {textarea}},
            {&BodyRules::startRawText, {xmp, iframe, noembed}},
            {&BodyRules::startSelect, {select}},
            {&BodyRules::startOption, {option, optgroup}},
            {&BodyRules::startRubyPart, {rb, rp, rt, rtc}},
            {&BodyRules::startForeign, {math, svg}},
            {&BodyRules::ignore, {caption, col, colgroup, frame, head, tbody, td, tfoot, th, thead, tr}},
        });
}();

constinit const BodyRules::Rules BodyRules::_endTagRules = [] {
    using enum TagId;
    return rulesOf(&BodyRules::endOrdinary,
        {
            {&BodyRules::endTemplate, {templateElement}},
            {&BodyRules::endBody, {body, html}},
            {&BodyRules::endBlock,
                {address, article, aside, blockquote, button, center, dd, details, dialog, dir, div, dl, dt, fieldset, figcaption, figure,
                    footer, header, hgroup, listing, main, menu, nav, ol, pre, search, section, select, summary, ul}},
            {&BodyRules::endForm, {form}},
            {&BodyRules::endParagraph, {p}},
            {&BodyRules::endListItem, {li}},
            {&BodyRules::endHeading, {h1, h2, h3, h4, h5, h6}},
            {&BodyRules::endFormatting, {a, b, big, code, em, font, i, nobr, s, small, strike, strong, tt, u}},
            {&BodyRules::endMarked, {applet, marquee, object}},
            {&BodyRules::endBreak, {br}},
        });
}();

BodyRules::Next BodyRules::inBody() {
    switch (_token.token().kind) {
    case Token::Kind::text:
        return inBodyText();
    case Token::Kind::startTag:
        return (this->*_startTagRules[static_cast<std::size_t>(_token.id())])();
    case Token::Kind::endTag:
        return (this->*_endTagRules[static_cast<std::size_t>(_token.id())])();
    default:
        return endTemplateAtEndOfFile();
    }
}

BodyRules::Next BodyRules::inBodyText() {
    _token.replaceNulls({});
    insertWithFormatting(_token.text());
    if (_allowsFrameset && !isBlank(_token.text())) {
        _allowsFrameset = false;
    }
    return Next::token;
}

} // namespace brindle::html
