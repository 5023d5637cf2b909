#include "html/CurrentToken.hpp"

#include <algorithm>
#include <iterator>
#include <string>

#include "html/AsciiText.hpp"

namespace brindle::html {

void CurrentToken::set(const Token& token) {
    _token = &token;
    _hasStraySolidus = false;
    if (token.kind == Token::Kind::text) {
        _text = token.data;
    } else if (token.kind == Token::Kind::startTag || token.kind == Token::Kind::endTag) {
        _nameIndex = _document.tags().intern(token.name);
        _tag = &_document.tags()[_nameIndex];
        _hasStraySolidus = token.isSelfClosing;
    }
}

Attributes CurrentToken::keptAttributes() const {
    return copyOf(_token->attributes, _document.arena());
}

std::string_view CurrentToken::takeLeadingWhitespace() noexcept {
    const auto* const end = std::find_if_not(_text.begin(), _text.end(), isAsciiWhitespace);
    const std::string_view taken = _text.substr(0, static_cast<std::size_t>(end - _text.begin()));
    _text.remove_prefix(taken.size());
    return taken;
}

void CurrentToken::dropLeadingLineFeed() noexcept {
    if (_text.starts_with('\n')) {
        _text.remove_prefix(1);
    }
}

void CurrentToken::keepWhitespaceOnly() {
    if (isBlank(_text)) {
        return;
    }
    std::string kept;
    std::copy_if(_text.begin(), _text.end(), std::back_inserter(kept), isAsciiWhitespace);
    _text = _document.arena().copy(kept);
}

void CurrentToken::replaceNulls(std::string_view replacement) {
    if (!_token->containsNull) {
        return;
    }
    std::string replaced;
    for (const char byte : _text) {
        if (byte != '\0') {
            replaced += byte;
        } else {
            replaced += replacement;
        }
    }
    _text = _document.arena().copy(replaced);
}

bool CurrentToken::isOneOf(std::initializer_list<TagId> ids) const noexcept {
    return std::find(ids.begin(), ids.end(), _tag->id()) != ids.end();
}

} // namespace brindle::html
