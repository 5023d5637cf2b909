#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// A UUID (RFC 4122). Thread: any; a value.
class UUID {
public:
    /// A fresh random one (version 4), from the system's random source.
    static UUID random();

    /// Absent unless `text` is the 36-character form, hexadecimal digits in either case.
    static std::optional<UUID> make(std::string_view text);

    /// The canonical form with upper-case digits, as files are named by it.
    std::string uuidString() const;

    friend bool operator==(const UUID&, const UUID&) = default;
    friend auto operator<=>(const UUID&, const UUID&) = default;

private:
    std::array<std::uint8_t, 16> _bytes{};
};

} // namespace brindle
