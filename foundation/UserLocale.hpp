#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The user's locale and time zone, as formatters take them. They come from the environment unless set here.
/// Thread: set both before any other thread runs; read from any.
namespace brindle {

/// Sets the process's locale by its ICU identifier ("de_DE", "en-US-u-ca-gregory"); false, and nothing changed, when ICU knows no such
/// language.
bool setUserLocale(std::string_view identifier);

/// The process's locale by its ICU identifier ("de_DE").
std::string userLocale();

/// Sets the process's time zone by its IANA name ("Europe/Berlin") or an offset ("GMT+1"); false, and nothing changed, when there is no
/// such zone.
bool setUserTimeZone(std::string_view identifier);

/// How often either was set: what a formatter keeps for an earlier count is stale.
std::uint64_t userLocaleChanges();

} // namespace brindle
