#pragma once

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/menu/MenuItemRepresentation.hpp"
#include "Brindle/menu/MenuRebuild.hpp"

#include <memory>

namespace brindle {

/// The item of a group, with the group's entries below it, to any depth. Thread: main.
class FeedGroupMenuItemRepresentation : public MenuItemRepresentation {
public:
    FeedGroupMenuItemRepresentation(std::shared_ptr<FeedGroup> group, std::shared_ptr<MenuRebuild> rebuild)
        : feedGroup(std::move(group)), _rebuild(std::move(rebuild)) {}
    /// Takes no stack for the depth of the groups below it.
    ~FeedGroupMenuItemRepresentation() override;

    MenuItemRepresentations menuItemRepresentations; ///< of the group's entries
    const std::shared_ptr<FeedGroup> feedGroup;

    void configure() override;
    /// The part of `configure` without the group's entries.
    void configureItem();

private:
    std::shared_ptr<MenuRebuild> _rebuild;
};

} // namespace brindle
