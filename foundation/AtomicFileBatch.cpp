#include "foundation/AtomicFileBatch.hpp"

#include "foundation/WriteAll.hpp"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace brindle {

namespace fs = std::filesystem;

namespace {

/// Temporary names of batches have an ending of their own, so that clearing up never takes a file that another writer is at work on.
constexpr std::string_view temporaryEnding = ".batch.tmp";

std::string temporaryName(const std::string& name) {
    std::string temporary = ".";
    temporary += name;
    temporary += temporaryEnding;
    return temporary;
}

bool isTemporaryName(std::string_view name) {
    return name.starts_with('.') && name.ends_with(temporaryEnding);
}

} // namespace

/// The files of one folder, reached through one descriptor, so that a folder that is moved meanwhile keeps its files together.
class AtomicFileBatch::Folder {
public:
    Folder(fs::path path, int descriptor, dev_t fileSystem) : device(fileSystem), _path(std::move(path)), _descriptor(descriptor) {
        removeLeftovers();
    }

    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    ~Folder() {
        for (const std::string& name : _names)
            removeTemporary(name);
        ::close(_descriptor);
    }

    tl::expected<void, FileError> write(const std::string& name, std::string_view bytes) {
        const std::string temporary = temporaryName(name);
        const int file = ::openat(_descriptor, temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0644);
        if (file < 0)
            return tl::unexpected(FileError::last("write", _path / name));
        _names.insert(name);
        const int writeError = writeAll(file, bytes);
        // Some file systems tell of a full disk only here.
        const bool isClosed = ::close(file) == 0;
        if (writeError == 0 && isClosed)
            return {};
        return tl::unexpected(abandon(name, writeError == 0 ? errno : writeError));
    }

    bool syncFileSystem() const { return ::syncfs(_descriptor) == 0; }

    void syncEach(std::vector<FileError>& errors) {
        for (const std::string& name : std::set<std::string>(_names)) {
            const int file = ::openat(_descriptor, temporaryName(name).c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
            const bool isSynced = file >= 0 && ::fsync(file) == 0;
            const int error = errno;
            if (file >= 0)
                ::close(file);
            if (!isSynced)
                errors.push_back(abandon(name, error));
        }
    }

    void replaceFiles(std::vector<FileError>& errors) {
        for (const std::string& name : std::exchange(_names, {})) {
            if (::renameat(_descriptor, temporaryName(name).c_str(), _descriptor, name.c_str()) != 0)
                errors.push_back(abandon(name, errno));
        }
    }

    void syncFolder(std::vector<FileError>& errors) const {
        // A file system that can't sync folders says EINVAL; its files are whole either way.
        if (::fsync(_descriptor) != 0 && errno != EINVAL)
            errors.push_back(FileError::last("sync", _path));
    }

    const dev_t device;

private:
    FileError abandon(const std::string& name, int error) {
        removeTemporary(name);
        _names.erase(name);
        return FileError::of(error, "write", _path / name);
    }

    void removeTemporary(const std::string& name) const { ::unlinkat(_descriptor, temporaryName(name).c_str(), 0); }

    void removeLeftovers() const {
        // Reading a folder moves its descriptor's position and ends with it: a descriptor of its own.
        const int descriptor = ::openat(_descriptor, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        DIR* const entries = descriptor < 0 ? nullptr : ::fdopendir(descriptor);
        if (!entries) {
            if (descriptor >= 0)
                ::close(descriptor);
            return;
        }
        while (const dirent* const entry = ::readdir(entries)) {
            if (isTemporaryName(entry->d_name))
                ::unlinkat(_descriptor, entry->d_name, 0);
        }
        ::closedir(entries);
    }

    fs::path _path;
    int _descriptor;
    std::set<std::string> _names; ///< those whose temporary file exists
};

AtomicFileBatch::AtomicFileBatch() = default;
AtomicFileBatch::~AtomicFileBatch() = default;

tl::expected<void, FileError> AtomicFileBatch::add(const fs::path& path, std::string_view bytes) {
    return folder(path.parent_path()).and_then([&](Folder* into) { return into->write(path.filename().native(), bytes); });
}

tl::expected<AtomicFileBatch::Folder*, FileError> AtomicFileBatch::folder(const fs::path& path) {
    if (const auto known = _folders.find(path.native()); known != _folders.end())
        return known->second.get();
    const int descriptor = ::open(path.empty() ? "." : path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return tl::unexpected(FileError::last("open", path));
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) {
        const FileError error = FileError::last("open", path);
        ::close(descriptor);
        return tl::unexpected(error);
    }
    auto made = std::make_unique<Folder>(path, descriptor, status.st_dev);
    return _folders.emplace(path.native(), std::move(made)).first->second.get();
}

std::vector<FileError> AtomicFileBatch::commit() {
    std::vector<FileError> errors;
    std::map<dev_t, bool> synced;
    for (auto& [path, folder] : _folders) {
        const auto [device, isFirst] = synced.try_emplace(folder->device, false);
        if (isFirst)
            device->second = folder->syncFileSystem();
        // A failure may be another program's: each file for itself tells whose.
        if (!device->second)
            folder->syncEach(errors);
    }
    for (auto& [path, folder] : _folders) {
        folder->replaceFiles(errors);
        folder->syncFolder(errors);
    }
    _folders.clear();
    return errors;
}

} // namespace brindle
