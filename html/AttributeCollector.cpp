#include "html/AttributeCollector.hpp"

namespace brindle::html {

bool AttributeCollector::isNew(std::string_view key) {
    if (_attributes.size() < fewAttributes) {
        return Attributes(_attributes).find(key) == nullptr;
    }
    if (_keys.empty()) {
        for (const Attribute& attribute : _attributes) {
            _keys.insert(attribute.key);
        }
    }
    return _keys.insert(key).second;
}

} // namespace brindle::html
