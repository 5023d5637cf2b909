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
    using Remove = std::function<void(const std::shared_ptr<Feed>& feed)>;

    /// `edit` opens the entry whose row was clicked; `remove` removes a separator, which can't be selected.
    FeedMenu(std::function<void()> edit, Remove remove) : _edit(std::move(edit)), _remove(std::move(remove)) {}

    std::shared_ptr<Menu> make(const std::shared_ptr<Feed>& feed);

    bool respondsTo(std::string_view action) const override;
    void perform(const Action& action) override;

private:
    const std::function<void()> _edit;
    const Remove _remove;
};

} // namespace brindle::desktop
