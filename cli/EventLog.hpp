#pragma once

#include "cli/CommandResult.hpp"

#include <filesystem>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <tl/expected.hpp>

namespace brindle {

/// A file of JSON objects, one a line, each written at once. Thread: main.
class EventLog {
public:
    /// Replaces what the file held.
    static tl::expected<std::shared_ptr<EventLog>, CommandError> open(const std::filesystem::path& file);

    void write(const nlohmann::ordered_json& event);
    /// The failure, where something could not be written.
    tl::expected<void, CommandError> result() const;

private:
    EventLog(std::filesystem::path file, std::ofstream stream) : _file(std::move(file)), _stream(std::move(stream)) {}

    std::filesystem::path _file;
    std::ofstream _stream;
};

} // namespace brindle
