#include "cli/EventLog.hpp"

#include "cli/JSONText.hpp"

#include <cerrno>
#include <system_error>
#include <utility>

namespace brindle {

tl::expected<std::shared_ptr<EventLog>, CommandError> EventLog::open(const std::filesystem::path& file) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    if (!stream)
        return failure(file.string() + ": " + std::generic_category().message(errno));
    return std::shared_ptr<EventLog>(new EventLog(file, std::move(stream)));
}

void EventLog::write(const nlohmann::ordered_json& event) {
    _stream << jsonLine(event) << std::flush;
}

tl::expected<void, CommandError> EventLog::result() const {
    if (!_stream)
        return failure(_file.string() + " could not be written");
    return {};
}

} // namespace brindle
