#include "html/ParseErrorList.hpp"

#include <algorithm>
#include <utility>

namespace brindle::html {

void ParseErrorList::merge(const ParseErrorList& other) {
    _errors.insert(_errors.begin(), other._errors.begin(), other._errors.end());
    std::stable_sort(_errors.begin(), _errors.end(), [](const ParseError& a, const ParseError& b) { return a.offset < b.offset; });
    _errors.resize(std::min(_errors.size(), _limit));
}

std::vector<ParseError> ParseErrorList::located(std::string_view text) && {
    std::stable_sort(_errors.begin(), _errors.end(), [](const ParseError& a, const ParseError& b) { return a.offset < b.offset; });
    std::size_t at = 0;
    std::size_t line = 1;
    std::size_t column = 1;
    for (ParseError& error : _errors) {
        for (; at < error.offset && at < text.size(); ++at) {
            const auto byte = static_cast<unsigned char>(text[at]);
            if (byte == '\n') {
                ++line;
                column = 1;
            } else if ((byte & 0xC0) != 0x80) {
                column += byte >= 0xF0 ? 2 : 1;
            }
        }
        error.line = line;
        error.column = column;
    }
    return std::move(_errors);
}

} // namespace brindle::html
