#include "cli/Input.hpp"

#include "foundation/FileError.hpp"
#include "foundation/FileManager.hpp"

#include <array>
#include <cerrno>
#include <cstddef>
#include <unistd.h>
#include <utility>

namespace brindle {

namespace {

tl::expected<std::string, FileError> readStandardInput() {
    std::string bytes;
    std::array<char, 1 << 16> buffer;
    for (;;) {
        const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return tl::unexpected(FileError::last("read", "standard input"));
        if (count == 0)
            return bytes;
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

} // namespace

tl::expected<std::string, CommandError> readInput(std::string_view file) {
    auto bytes = file == "-" ? readStandardInput() : FileManager::contents(file);
    if (!bytes)
        return failure(std::move(bytes.error().message));
    return *std::move(bytes);
}

} // namespace brindle
