#pragma once

#include "Brindle/shell/NewFeedItemViewController.hpp"
#include "desktop/windows/DialogPane.hpp"

namespace brindle::desktop {

/// The form of a feed: its address, its name, how often it is fetched. The controller outlives the pane. Thread: main.
class NewFeedItemPane : public DialogPane {
public:
    explicit NewFeedItemPane(NewFeedItemViewController& controller, QWidget* parent = nullptr);

private:
    void addForm(NewFeedItemViewController& controller);
    void addStatus(NewFeedItemViewController& controller);
};

} // namespace brindle::desktop
