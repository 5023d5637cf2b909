#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace brindle::html {

/// Memory that only grows and is given back as a whole, so that a tree of any depth goes away without a walk.
/// What is made here must need no destructor. Not safe for use by two threads at once. Throws `std::bad_alloc` only.
class Arena {
public:
    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    Arena(Arena&&) = delete;
    Arena& operator=(Arena&&) = delete;
    ~Arena() = default;

    template <typename T, typename... Arguments>
    T* make(Arguments&&... arguments) {
        static_assert(std::is_trivially_destructible_v<T>, "nothing in an arena is destroyed on its own");
        return ::new (allocate(sizeof(T), alignof(T))) T(std::forward<Arguments>(arguments)...);
    }

    /// A copy of `text` that lives as long as the arena.
    std::string_view copy(std::string_view text) {
        if (text.empty()) {
            return {};
        }
        char* const to = static_cast<char*>(allocate(text.size(), 1));
        std::memcpy(to, text.data(), text.size());
        return {to, text.size()};
    }

    /// `size` bytes at a multiple of `alignment`, which is a power of two of at most `alignof(std::max_align_t)`.
    void* allocate(std::size_t size, std::size_t alignment) {
        const std::size_t gap = (~_used + 1) & (alignment - 1);
        if (size > _capacity - _used || gap > _capacity - _used - size) {
            return allocateInNewChunk(size);
        }
        _used += gap;
        void* const place = _chunk + _used;
        _used += size;
        return place;
    }

private:
    void* allocateInNewChunk(std::size_t size);

    std::vector<std::unique_ptr<std::byte[]>> _chunks;
    std::byte* _chunk = nullptr;
    std::size_t _used = 0;
    std::size_t _capacity = 0;
    std::size_t _nextCapacity = 4096;
};

} // namespace brindle::html
