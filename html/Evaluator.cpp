#include "html/Evaluator.hpp"

#include "html/AsciiText.hpp"
#include "html/Element.hpp"
#include "html/Error.hpp"

namespace brindle::html {

namespace {

std::string_view trimmed(std::string_view text) noexcept {
    while (!text.empty() && isAsciiWhitespace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isAsciiWhitespace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

} // namespace

TagEvaluator::TagEvaluator(std::string_view tagName) : _tagName(trimmed(tagName)), _normalName(asciiLowercased(_tagName)) {
    if (tagName.empty()) {
        throw Error("The tag name must not be empty");
    }
}

bool TagEvaluator::matches(const Element& element) const {
    return element.tag().normalName() == _normalName;
}

} // namespace brindle::html
