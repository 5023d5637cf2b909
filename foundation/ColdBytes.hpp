#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace brindle {

/// Bytes that never change and are rarely looked at, shared by all copies. They lie in memory, there compressed (Zstandard, RFC 8878) where
/// that was asked for, or in the file that has them. Thread: any; a value.
class ColdBytes {
public:
    ColdBytes() = default;
    ColdBytes(std::string bytes);
    ColdBytes(const char* text) : ColdBytes(std::string(text)) {}
    /// What a file has now, which is not read yet; empty where there is none.
    static ColdBytes ofFile(const std::filesystem::path& file);

    bool empty() const { return !_block; }
    /// In bytes, whether or not they can still be read.
    std::size_t size() const;
    /// All of them; nothing where they lay in a file that others have changed or removed.
    std::string bytes() const;

    /// Where the bytes lie; empty when that is memory.
    std::filesystem::path file() const;
    /// No copy is kept in memory: `file` has the same bytes. Nothing where its size says otherwise.
    void leaveIn(const std::filesystem::path& file) const;
    /// Reads them back into memory, for a file that is about to change.
    void takeBack() const;
    /// Keeps them compressed for as long as they lie in memory.
    void compress() const;

    bool isSameObject(const ColdBytes& other) const { return _block == other._block; }
    /// Whether there are other copies of this value. Meaningful on the thread that makes them.
    bool isShared() const { return _block.use_count() > 1; }

    friend bool operator==(const ColdBytes& a, const ColdBytes& b) {
        return a._block == b._block || (a.size() == b.size() && a.bytes() == b.bytes());
    }

private:
    class Block;

    std::shared_ptr<Block> _block; ///< null when empty
};

} // namespace brindle
