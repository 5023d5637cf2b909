#pragma once

#include <optional>
#include <string_view>

namespace brindle {

/// The HTML standard's named character references that end in ";" (13.5), for decoding texts. Thread: any; the table is built at first use.
class HTMLStringMappings {
public:
    /// The replacement for a name without "&" and ";"; case counts.
    static std::optional<std::string_view> text(std::string_view name);
};

} // namespace brindle
