#pragma once

#include "Brindle/shell/NewFeedGroupViewController.hpp"
#include "desktop/windows/DialogPane.hpp"

namespace brindle::desktop {

/// The form of a group: its name. The controller outlives the pane. Thread: main.
class NewFeedGroupPane : public DialogPane {
public:
    explicit NewFeedGroupPane(NewFeedGroupViewController& controller, QWidget* parent = nullptr);
};

} // namespace brindle::desktop
