#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace brindle {

/// A JSON document (RFC 8259) for standard output: UTF-8, two blanks for each level down to the 64th, keys in their order, a new line at
/// the end. Malformed UTF-8 becomes U+FFFD. Takes no stack for depth. Thread: any.
std::string jsonText(const nlohmann::ordered_json& value);

/// The same on one line.
std::string jsonLine(const nlohmann::ordered_json& value);

} // namespace brindle
