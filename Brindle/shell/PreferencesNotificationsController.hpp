#pragma once

#include "Brindle/shell/PreferencesEnvironment.hpp"
#include "Brindle/shell/PreferencesPane.hpp"
#include "platform/PopUpButton.hpp"

#include <memory>
#include <string>
#include <vector>

namespace brindle {

/// The preferences of banners and speech. Thread: main.
class PreferencesNotificationsController : public PreferencesPane,
                                           public SpeechVoicesObserver,
                                           public std::enable_shared_from_this<PreferencesNotificationsController> {
public:
    explicit PreferencesNotificationsController(PreferencesEnvironment environment);

    const std::shared_ptr<PopUpButton> voicesPopUpButton = std::make_shared<PopUpButton>(); ///< an item's tag is the index of its voice

    /// The names of the system's voices, in its order.
    std::vector<std::string> voices() const;
    void viewWillAppear() override;
    void speechVoicesDidChange() override;

private:
    const PreferencesEnvironment _environment;
};

} // namespace brindle
