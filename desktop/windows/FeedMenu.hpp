#pragma once

#include "Brindle/library/Feed.hpp"
#include "platform/ActionHandler.hpp"
#include "platform/Menu.hpp"

#include <functional>
#include <memory>
#include <utility>

namespace brindle::desktop {

/// The menu of a row of the feeds: what can be done with that entry of the tree. Thread: main.
class FeedMenu : public ActionHandler, public std::enable_shared_from_this<FeedMenu> {
public:
    /// `edit` opens the entry whose row was clicked.
    explicit FeedMenu(std::function<void()> edit) : _edit(std::move(edit)) {}

    /// Without items for a separator.
    std::shared_ptr<Menu> make(const std::shared_ptr<Feed>& feed);

    bool respondsTo(std::string_view action) const override;
    void perform(const Action&) override { _edit(); }

private:
    const std::function<void()> _edit;
};

} // namespace brindle::desktop
