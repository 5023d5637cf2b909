#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <string_view>

namespace brindle {

/// JSON documents (RFC 8259) into values. Reading takes an object or an array at the top level and nothing else; a byte order mark
/// is accepted, the last of repeated keys wins, nesting deeper than `maximumDepth` is refused. Thread: any.
class JSONSerialization {
public:
    static constexpr std::size_t maximumDepth = 512;

    /// Absent when `data` is not UTF-8 JSON with an object or array at the top level. Nothing is read past the first character that can't
    /// start one.
    static std::optional<nlohmann::json> object(std::string_view data);
};

} // namespace brindle
