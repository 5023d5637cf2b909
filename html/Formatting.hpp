#pragma once

#include <cstddef>

#include "html/ActiveFormattingElements.hpp"
#include "html/NodeInsertion.hpp"
#include "html/OpenElements.hpp"

namespace brindle::html {

/// What tree construction does for formatting elements such as `b` that are closed out of turn.
class Formatting {
public:
    /// At most `reopenable` elements are opened again in all; without a limit a short text could ask for any number of them.
    Formatting(NodeInsertion& insertion, OpenElements& open, std::size_t reopenable) noexcept
        : _insertion(insertion), _open(open), _reopenable(reopenable) {}

    ActiveFormattingElements& active() noexcept { return _active; }

    /// Opens again what has been closed out of turn ("reconstruct the active formatting elements", section 13.2.4.3).
    void reconstruct() {
        const FormattingElement* const last = _active.last();
        if (last != nullptr && !last->isMarker() && last->open == nullptr) {
            reopen();
        }
    }

    /// The adoption agency algorithm for an end tag (section 13.2.6.4.7). False if the tag is to be treated as any other end tag.
    bool close(TagId id);

private:
    void reopen();
    void dropClosed() noexcept;
    bool closeOnce(FormattingElement& formatting);
    Element* rebuildBetween(const OpenElement& formatting, OpenElement& furthest, FormattingElement*& bookmark);

    NodeInsertion& _insertion;
    OpenElements& _open;
    ActiveFormattingElements _active;
    std::size_t _reopenable;
};

} // namespace brindle::html
