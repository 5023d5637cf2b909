#pragma once

#include "foundation/UserDefaults.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// What the defaults take from the desktop that the program runs on. Thread: any.
struct PlatformDefaults {
    std::int64_t speechVoiceIndex = 0;
    double systemFontSize = 13; ///< points
    double menuFontSize = 14;   ///< points
};

/// One row of the table of preferences: what may stand under a key. Thread: any.
struct Preference {
    enum class Kind {
        boolean,
        integer,
        text,
        color, ///< the data of an archived `Color`
        number ///< floating point
    };

    std::string_view key;
    Kind kind;
    std::optional<UserDefaults::Value> defaultValue; ///< absent: nothing is registered
};

/// "boolean", "integer", "text", "color", "number". Thread: any.
std::string_view name(Preference::Kind kind);

/// The one table of all preferences: those with a default in the order of registration, then those that are never registered. Thread:
/// any.
std::vector<Preference> preferences(const PlatformDefaults& platform = {});

/// Registers all defaults; the first thing that the program does. Thread: main.
void registerDefaults(UserDefaults& defaults, const PlatformDefaults& platform = {});

/// The default of `speechVoiceIndex`: the place of the first voice that is the system's default one, 0 when there is none.
/// Thread: any.
std::int64_t speechVoiceIndex(std::string_view defaultVoice, const std::vector<std::string>& availableVoices);

/// The name of the image that the status item shows. Thread: main.
std::string statusIconName(const UserDefaults& defaults, bool hasUnreadArticles);

} // namespace brindle
