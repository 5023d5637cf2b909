#include "foundation/UserLocale.hpp"

#include <atomic>
#include <memory>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

namespace brindle {

namespace {

std::atomic<std::uint64_t> changes = 0;

} // namespace

bool setUserLocale(std::string_view identifier) {
    const icu::Locale locale(std::string(identifier).c_str());
    // ICU makes a locale of any text; only a language that it knows has a three-letter code.
    if (locale.isBogus() || *locale.getISO3Language() == '\0')
        return false;
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(locale, status);
    if (U_FAILURE(status))
        return false;
    ++changes;
    return true;
}

std::string userLocale() {
    return icu::Locale::getDefault().getName();
}

bool setUserTimeZone(std::string_view identifier) {
    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(
        icu::UnicodeString::fromUTF8(icu::StringPiece(identifier.data(), static_cast<std::int32_t>(identifier.size())))));
    if (*zone == icu::TimeZone::getUnknown())
        return false;
    icu::TimeZone::adoptDefault(zone.release());
    ++changes;
    return true;
}

std::uint64_t userLocaleChanges() {
    return changes;
}

} // namespace brindle
