#pragma once

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/shell/NewFeedEnvironment.hpp"
#include "Brindle/shell/NewFeedPane.hpp"
#include "platform/TextField.hpp"

#include <memory>
#include <utility>

namespace brindle {

/// The pane that adds a group, or changes the name of one. Thread: main.
class NewFeedGroupViewController : public NewFeedPane {
public:
    explicit NewFeedGroupViewController(NewFeedEnvironment environment) : _environment(std::move(environment)) {}

    std::shared_ptr<FeedGroup> feedGroup; ///< the group to change; null when one is added
    TextField nameTextField;

    void handleOK() override;

private:
    void prepare() override;

    const NewFeedEnvironment _environment;
};

} // namespace brindle
