#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "html/Arena.hpp"
#include "html/OpenElement.hpp"
#include "html/SelectedContent.hpp"

namespace brindle::html {

/// The stack of open elements (HTML standard, section 13.2.4.2), whose newest entry is the current node.
///
/// The standard answers most questions about the stack by walking it. Here each entry knows the nearest boundaries below it, and the
/// entries of one name are chained, so that every question is answered at once, however deep the stack: an element lies within a scope if
/// it and the current node share the boundary of that scope.
class OpenElements {
public:
    /// `selectedContent` is told of what it has to know.
    explicit OpenElements(SelectedContent& selectedContent) : _selectedContent(&selectedContent), _topmost(2 * tagIdCount) {}
    OpenElements(const OpenElements&) = delete;
    OpenElements& operator=(const OpenElements&) = delete;

    bool empty() const noexcept { return _top == nullptr; }

    /// The current node. The stack must not be empty.
    OpenElement& current() const noexcept { return *_top; }

    /// The lowest entry, which is the `html` element. The stack must not be empty.
    OpenElement& root() const noexcept { return *_root; }

    /// Whether the lowest entry is the only one.
    bool holdsRootOnly() const noexcept { return _top == _root; }

    /// Makes an element the current node. `nameIndex` is that of its name, in lower case, in the document's table of tags.
    OpenElement& push(Element& element, std::uint32_t nameIndex);

    void pop();

    /// Pops entries until `entry`, which must be open, has been popped.
    void popThrough(const OpenElement& entry);

    /// Takes an entry out, wherever it is.
    void remove(OpenElement& entry) noexcept;

    /// Moves an entry that is no boundary to directly above `place`, and has it stand for another element of the same name.
    void moveAbove(OpenElement& entry, OpenElement& place, Element& element) noexcept;

    /// The newest entry of this tag, or null.
    OpenElement* topmost(TagId id) const noexcept { return _topmost[static_cast<std::size_t>(id)]; }

    bool has(TagId id) const noexcept { return topmost(id) != nullptr; }

    /// The newest entry of this tag that lies above the nearest boundary of this kind or is that boundary, or null.
    OpenElement* within(TagId id, Boundary boundary) const noexcept {
        OpenElement* const entry = topmost(id);
        return entry != nullptr && isWithin(*entry, boundary) ? entry : nullptr;
    }

    /// The same for an element of HTML of any name.
    OpenElement* within(TagId id, std::uint32_t nameIndex, Boundary boundary) const noexcept;

    bool isWithin(const OpenElement& entry, Boundary boundary) const noexcept {
        return entry.boundary(boundary) == _top->boundary(boundary);
    }

    bool hasAnyWithin(std::initializer_list<TagId> ids, Boundary boundary) const noexcept;

    /// The newest foreign entry of this name that has no element of HTML above it, or null.
    OpenElement* foreignWithin(std::uint32_t nameIndex) const noexcept;

private:
    OpenElement& makeEntry();
    OpenElement* topmostAt(std::uint32_t slot) const noexcept { return slot < _topmost.size() ? _topmost[slot] : nullptr; }
    void unlink(OpenElement& entry) noexcept;

    SelectedContent* const _selectedContent;
    Arena _entries;
    OpenElement* _free = nullptr; ///< Entries out of use, chained by `below`.
    OpenElement* _top = nullptr;
    OpenElement* _root = nullptr;
    std::vector<OpenElement*> _topmost; ///< By name slot.
    std::uint32_t _serial = 0;
};

} // namespace brindle::html
