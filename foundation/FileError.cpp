#include "foundation/FileError.hpp"

#include <cerrno>
#include <cstring>

namespace brindle {

FileError FileError::last(std::string_view operation, const std::filesystem::path& path) {
    return of(errno, operation, path);
}

FileError FileError::of(int code, std::string_view operation, const std::filesystem::path& path) {
    std::string message = "Could not ";
    message += operation;
    message += ' ';
    message += path.string();
    message += ": ";
    message += ::strerrordesc_np(code) ? ::strerrordesc_np(code) : "Unknown error";
    return {code, std::move(message)};
}

} // namespace brindle
