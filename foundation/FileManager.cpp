#include "foundation/FileManager.hpp"

#include "foundation/WriteAll.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace brindle {

namespace fs = std::filesystem;

namespace {

/// A descriptor that closes itself.
class Descriptor {
public:
    explicit Descriptor(int value) : _value(value) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (_value >= 0)
            ::close(_value);
    }
    int value() const { return _value; }
    explicit operator bool() const { return _value >= 0; }

private:
    int _value;
};

/// Makes a rename in `folder` last. A file system that can't is no failure: the file is whole either way.
void syncFolder(const fs::path& folder) {
    const Descriptor descriptor(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor)
        ::fsync(descriptor.value());
}

} // namespace

bool FileManager::fileExists(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

tl::expected<std::string, FileError> FileManager::contents(const fs::path& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    if (!file || ::fstat(file.value(), &status) != 0)
        return tl::unexpected(FileError::last("read", path));
    std::string bytes;
    if (S_ISREG(status.st_mode) && status.st_size > 0)
        bytes.reserve(static_cast<std::size_t>(status.st_size));
    std::array<char, 1 << 16> buffer;
    for (;;) {
        const ssize_t count = ::read(file.value(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return tl::unexpected(FileError::last("read", path));
        if (count == 0)
            return bytes;
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

tl::expected<void, FileError> FileManager::writeAtomically(const fs::path& path, std::string_view bytes) {
    // One name for all writers of a file, so that what a crash leaves behind is gone with the next write. Of two that write at once, the
    // first may find its file gone and fail; what stands in the end is one of theirs, whole.
    const fs::path temporary = path.parent_path() / ("." + path.filename().string() + ".tmp");
    ::unlink(temporary.c_str());
    const Descriptor file(::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644));
    if (!file)
        return tl::unexpected(FileError::last("write", path));
    const auto failed = [&] {
        const FileError error = FileError::last("write", path);
        ::unlink(temporary.c_str());
        return tl::unexpected(error);
    };
    if (writeAll(file.value(), bytes) != 0 || ::fsync(file.value()) != 0)
        return failed();
    if (::rename(temporary.c_str(), path.c_str()) != 0)
        return failed();
    syncFolder(path.parent_path());
    return {};
}

tl::expected<void, FileError> FileManager::createDirectory(const fs::path& path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (error)
        return tl::unexpected(FileError::of(error.value(), "create", path));
    if (!fs::is_directory(path, error))
        return tl::unexpected(FileError::of(ENOTDIR, "create", path));
    return {};
}

tl::expected<void, FileError> FileManager::moveItem(const fs::path& from, const fs::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return {};
    if (errno != EINVAL && errno != ENOSYS)
        return tl::unexpected(FileError::last("move", from));
    // A file system without the flag: look, then rename.
    if (fileExists(to))
        return tl::unexpected(FileError::of(EEXIST, "move", from));
    if (::rename(from.c_str(), to.c_str()) != 0)
        return tl::unexpected(FileError::last("move", from));
    return {};
}

tl::expected<void, FileError> FileManager::removeItem(const fs::path& path) {
    std::error_code error;
    if (fs::remove_all(path, error) == 0 && !error)
        error = std::make_error_code(std::errc::no_such_file_or_directory);
    if (error)
        return tl::unexpected(FileError::of(error.value(), "remove", path));
    return {};
}

std::optional<std::vector<fs::path>> FileManager::visibleContents(const fs::path& path) {
    std::error_code error;
    std::vector<fs::path> entries;
    for (fs::directory_iterator i(path, error), end; !error && i != end; i.increment(error)) {
        if (!i->path().filename().native().starts_with('.'))
            entries.push_back(i->path());
    }
    if (error)
        return std::nullopt;
    std::sort(entries.begin(), entries.end());
    return entries;
}

std::optional<fs::path> FileManager::applicationSupportDirectory() {
    // Relative values are to be ignored.
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && data[0] == '/')
        return fs::path(data);
    if (const char* home = std::getenv("HOME"); home && home[0] == '/')
        return fs::path(home) / ".local/share";
    return std::nullopt;
}

} // namespace brindle
