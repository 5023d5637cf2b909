#pragma once

#include <cstddef>
#include <vector>

namespace brindle::html {

class Element;

/// An ordered list of elements, which belong to their document.
class Elements {
public:
    std::vector<Element*> elements;

    auto begin() const noexcept { return elements.begin(); }
    auto end() const noexcept { return elements.end(); }
    std::size_t size() const noexcept { return elements.size(); }
    bool empty() const noexcept { return elements.empty(); }

    /// `index` must be below `size()`.
    Element* operator[](std::size_t index) const noexcept { return elements[index]; }
};

} // namespace brindle::html
