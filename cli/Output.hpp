#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// The program's standard output: the result and nothing else. The first write that fails is remembered, and nothing is written after it.
/// Thread: main.
class Output {
public:
    /// Writes `text` at once and as it is.
    void text(std::string_view text);
    /// Writes `text`, and a new line where it ends without one.
    void document(std::string_view text);
    void json(const nlohmann::ordered_json& value);

    /// Why a write failed, for people; absent while all went well.
    const std::optional<std::string>& failure() const { return _failure; }

private:
    std::optional<std::string> _failure;
};

} // namespace brindle
