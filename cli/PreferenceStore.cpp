#include "cli/PreferenceStore.hpp"

#include "Brindle/shell/Preferences.hpp"

namespace brindle {

tl::expected<std::shared_ptr<UserDefaults>, CommandError> openPreferences(const Settings& settings) {
    const auto file =
        settings.supportDirectory ? std::optional(*settings.supportDirectory / "Preferences.plist") : UserDefaults::standardFile("brindle");
    if (!file)
        return failure("the folder for preferences of the current user is not known");
    auto defaults = std::make_shared<UserDefaults>(*file);
    registerDefaults(*defaults);
    return defaults;
}

} // namespace brindle
