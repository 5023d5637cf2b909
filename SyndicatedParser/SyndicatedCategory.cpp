#include "SyndicatedParser/SyndicatedCategory.hpp"

#include <utility>

namespace brindle {

void SyndicatedCategory::setTerm(std::string term) {
    if (_label.empty())
        _label = term;
    _term = std::move(term);
}

void SyndicatedCategory::setLabel(std::string label) {
    _label = std::move(label);
}

} // namespace brindle
