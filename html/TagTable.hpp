#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "html/Arena.hpp"
#include "html/Tag.hpp"

namespace brindle::html {

/// The tags that one document uses, each made once. A tag's index counts from 0 in the order of first use.
class TagTable {
public:
    static constexpr std::uint32_t noIndex = UINT32_MAX;

    /// Tags unknown to the toolkit, and the names that `intern` is asked to copy, are kept in `arena`.
    explicit TagTable(Arena& arena);

    /// The index of the tag with this name, which is made if need be. `name` must live as long as the arena.
    std::uint32_t intern(std::string_view name);

    /// The index of the tag with this name if the document has used it, else `noIndex`.
    std::uint32_t find(std::string_view name) const noexcept;

    const Tag& operator[](std::uint32_t index) const noexcept { return *_tags[index]; }
    std::size_t size() const noexcept { return _tags.size(); }

private:
    std::size_t slotOf(std::string_view name) const noexcept;
    const Tag* tagFor(std::string_view name);
    void grow();

    Arena* _arena;
    std::vector<const Tag*> _tags;
    std::vector<std::uint32_t> _slots; ///< Open addressing; the size is a power of two, and a free slot holds `noIndex`.
};

} // namespace brindle::html
