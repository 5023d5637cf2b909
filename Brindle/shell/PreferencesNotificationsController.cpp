#include "Brindle/shell/PreferencesNotificationsController.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/PreferenceCheckBox.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <utility>

namespace brindle {

PreferencesNotificationsController::PreferencesNotificationsController(PreferencesEnvironment environment)
    : _environment(std::move(environment)) {
    const auto checkBox = [this](std::string_view key, std::string title) {
        return Row{{}, {std::make_shared<PreferenceCheckBox>(_environment.defaults, key, std::move(title))}};
    };
    addSection(localized("How to announce"),
        {checkBox(preference::useVisualNotifications, localized("By a banner")),
            checkBox(preference::useSpeechNotifications, localized("By speech")), {localized("Voice:"), {voicesPopUpButton}}});
    addSection(localized("What to announce"),
        {checkBox(preference::notifyOnNewArticles, localized("New articles")),
            checkBox(preference::notifyOnOtherError, localized("Updates that failed")),
            checkBox(preference::notifyOnAttention, localized("What asks for attention")),
            checkBox(preference::notifyOnAuthenticationRequest, localized("Feeds that ask for a name and a password"))});
    voicesPopUpButton->onChoose = [this] {
        if (const auto index = voicesPopUpButton->selectedTag())
            _environment.defaults->set(preference::speechVoiceIndex, *index);
    };
}

std::vector<std::string> PreferencesNotificationsController::voices() const {
    std::vector<std::string> names;
    for (SpeechVoice& voice : _environment.speechVoices->voices())
        names.push_back(std::move(voice.name));
    return names;
}

/// The system may have other voices than before.
void PreferencesNotificationsController::viewWillAppear() {
    _environment.speechVoices->observer = weak_from_this();
    speechVoicesDidChange();
}

void PreferencesNotificationsController::speechVoicesDidChange() {
    voicesPopUpButton->removeAllItems();
    std::int64_t tag = 0;
    for (std::string& voice : voices())
        voicesPopUpButton->addItem(std::make_shared<MenuItem>(std::move(voice)), tag++);
    voicesPopUpButton->selectItem(_environment.defaults->integerForKey(preference::speechVoiceIndex));
}

} // namespace brindle
