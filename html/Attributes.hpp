#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

#include "html/Arena.hpp"

namespace brindle::html {

/// One attribute of an element. Both texts live as long as the document.
struct Attribute {
    std::string_view key;
    std::string_view value;
};

/// The attributes of one element in the order of the source, no key twice. Keys are compared by exact text.
/// A view: the attributes themselves belong to the document.
class Attributes {
public:
    Attributes() = default;
    explicit Attributes(std::span<const Attribute> attributes) noexcept : _attributes(attributes) {}

    const Attribute* begin() const noexcept { return _attributes.data(); }
    const Attribute* end() const noexcept { return _attributes.data() + _attributes.size(); }
    std::size_t size() const noexcept { return _attributes.size(); }
    bool empty() const noexcept { return _attributes.empty(); }

    /// The attribute with this key, or null.
    const Attribute* find(std::string_view key) const noexcept {
        for (const Attribute& attribute : _attributes) {
            if (attribute.key == key) {
                return &attribute;
            }
        }
        return nullptr;
    }

private:
    std::span<const Attribute> _attributes;
};

/// A copy of `attributes` that lives as long as the arena. Their texts are not copied.
inline Attributes copyOf(std::span<const Attribute> attributes, Arena& arena) {
    if (attributes.empty()) {
        return {};
    }
    auto* const first = static_cast<Attribute*>(arena.allocate(attributes.size_bytes(), alignof(Attribute)));
    std::uninitialized_copy(attributes.begin(), attributes.end(), first);
    return Attributes({first, attributes.size()});
}

} // namespace brindle::html
