#pragma once

#include <vector>

#include "html/Arena.hpp"
#include "html/OpenElement.hpp"

namespace brindle::html {

class OpenElements;

/// Has the `selectedcontent` of a `select` show what its selected option holds (HTML standard, sections 4.10.7 and 4.10.10): the option's
/// content is copied whenever the selected option is closed.
class SelectedContent {
public:
    /// The copies are made in `arena`.
    explicit SelectedContent(Arena& arena) noexcept : _arena(&arena) {}

    /// To be told of each `select`, `option` and `selectedcontent` once it is on the stack.
    void opened(const OpenElement& entry, const OpenElements& open);

    /// To be told of each of them that is popped off the stack.
    void closed(const OpenElement& entry);

private:
    /// What is known of a `select` that is open.
    struct Select {
        bool isMultiple = false;
        bool isListBox = false; ///< Shows several options at once, so that none is selected by itself.
        Element* selectedContent = nullptr;
        Element* selected = nullptr;
        bool isSelectedClosed = false;
    };

    void openedOption(const OpenElement& entry, const OpenElements& open);
    void choose(const OpenElement& option, bool isDisabled);
    void openedSelectedContent(const OpenElement& entry, const OpenElements& open);
    void show(const Select& select);

    Arena* _arena;
    std::vector<Select> _selects; ///< The innermost last.
};

} // namespace brindle::html
