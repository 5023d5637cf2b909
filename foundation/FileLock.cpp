#include "foundation/FileLock.hpp"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace brindle {

tl::expected<std::optional<FileLock>, FileError> FileLock::tryLock(const std::filesystem::path& file) {
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (descriptor < 0)
        return tl::unexpected(FileError::last("open", file));
    FileLock lock(descriptor);
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return std::optional<FileLock>(std::move(lock));
    if (errno == EWOULDBLOCK)
        return std::optional<FileLock>();
    return tl::unexpected(FileError::last("lock", file));
}

FileLock::FileLock(FileLock&& other) noexcept : _descriptor(std::exchange(other._descriptor, -1)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
    std::swap(_descriptor, other._descriptor);
    return *this;
}

FileLock::~FileLock() {
    if (_descriptor >= 0)
        ::close(_descriptor);
}

} // namespace brindle
