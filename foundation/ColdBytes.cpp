#include "foundation/ColdBytes.hpp"

#include "foundation/FileManager.hpp"

#include <mutex>
#include <optional>
#include <sys/stat.h>
#include <utility>
#include <variant>
#include <zstd.h>

namespace brindle {

namespace fs = std::filesystem;

namespace {

constexpr int compressionLevel = 1; // the quickest; a higher one gains a twentieth

/// A file in the state in which it had the bytes.
struct FileState {
    dev_t device;
    ino_t inode;
    off_t size;
    timespec modified;

    static std::optional<FileState> of(const fs::path& file) {
        struct stat status {};
        if (::stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
            return std::nullopt;
        return FileState{status.st_dev, status.st_ino, status.st_size, status.st_mtim};
    }
    bool operator==(const FileState& other) const {
        return device == other.device && inode == other.inode && size == other.size && modified.tv_sec == other.modified.tv_sec &&
               modified.tv_nsec == other.modified.tv_nsec;
    }
};

struct Compressed {
    std::string bytes;
};
struct InFile {
    fs::path path;
    FileState state;
};

} // namespace

class ColdBytes::Block {
public:
    explicit Block(std::string bytes) : _size(bytes.size()), _place(std::move(bytes)) {}
    explicit Block(InFile file) : _size(static_cast<std::size_t>(file.state.size)), _place(std::move(file)) {}

    std::size_t size() const { return _size; }

    std::string bytes() const {
        const std::scoped_lock lock(_mutex);
        return read();
    }

    fs::path file() const {
        const std::scoped_lock lock(_mutex);
        const InFile* const file = std::get_if<InFile>(&_place);
        return file ? file->path : fs::path();
    }

    void leaveIn(const fs::path& path) {
        const auto state = FileState::of(path);
        if (!state || !std::cmp_equal(state->size, _size))
            return;
        const std::scoped_lock lock(_mutex);
        _place = InFile{path, *state};
    }

    void takeBack() {
        const std::scoped_lock lock(_mutex);
        if (!std::holds_alternative<InFile>(_place))
            return;
        if (std::string bytes = read(); bytes.size() == _size)
            _place = std::move(bytes);
    }

    void compress() {
        const std::scoped_lock lock(_mutex);
        const std::string* const plain = std::get_if<std::string>(&_place);
        if (!plain)
            return;
        std::string compressed(ZSTD_compressBound(plain->size()), '\0');
        const std::size_t size = ZSTD_compress(compressed.data(), compressed.size(), plain->data(), plain->size(), compressionLevel);
        if (ZSTD_isError(size) || size >= plain->size())
            return;
        compressed.resize(size);
        compressed.shrink_to_fit();
        _place = Compressed{std::move(compressed)};
    }

private:
    std::string read() const {
        if (const std::string* const plain = std::get_if<std::string>(&_place))
            return *plain;
        if (const Compressed* const compressed = std::get_if<Compressed>(&_place))
            return decompress(compressed->bytes);
        const InFile& file = std::get<InFile>(_place);
        if (FileState::of(file.path) != file.state)
            return {};
        auto bytes = FileManager::contents(file.path);
        return bytes && bytes->size() == _size ? *std::move(bytes) : std::string();
    }

    std::string decompress(const std::string& compressed) const {
        std::string bytes(_size, '\0');
        const std::size_t size = ZSTD_decompress(bytes.data(), bytes.size(), compressed.data(), compressed.size());
        return size == _size ? bytes : std::string();
    }

    const std::size_t _size;
    mutable std::mutex _mutex;
    std::variant<std::string, Compressed, InFile> _place;
};

ColdBytes::ColdBytes(std::string bytes) : _block(bytes.empty() ? nullptr : std::make_shared<Block>(std::move(bytes))) {}

ColdBytes ColdBytes::ofFile(const fs::path& file) {
    ColdBytes result;
    if (const auto state = FileState::of(file); state && state->size > 0)
        result._block = std::make_shared<Block>(InFile{file, *state});
    return result;
}

std::size_t ColdBytes::size() const {
    return _block ? _block->size() : 0;
}

std::string ColdBytes::bytes() const {
    return _block ? _block->bytes() : std::string();
}

fs::path ColdBytes::file() const {
    return _block ? _block->file() : fs::path();
}

void ColdBytes::leaveIn(const fs::path& file) const {
    if (_block)
        _block->leaveIn(file);
}

void ColdBytes::takeBack() const {
    if (_block)
        _block->takeBack();
}

void ColdBytes::compress() const {
    if (_block)
        _block->compress();
}

} // namespace brindle
