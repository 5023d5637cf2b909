#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace brindle::html {

/// Sixteen bytes of text that are looked at together. Masks have one bit per byte, the lowest for the first byte.
/// Uses the processor's vector unit where the build has it, and plain loops elsewhere. Safe on every thread.
class ByteBlock {
public:
    static constexpr std::size_t size = 16;

    /// Reads `size` bytes at `from`.
    explicit ByteBlock(const char* from) noexcept { std::memcpy(&_bytes, from, size); }

    void store(char* to) const noexcept { std::memcpy(to, &_bytes, size); }

#if defined(__SSE2__)
    std::uint32_t equalTo(char byte) const noexcept {
        return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(_bytes, _mm_set1_epi8(byte))));
    }

    /// The bytes whose unsigned value is at most `limit`.
    std::uint32_t atMost(unsigned char limit) const noexcept {
        const __m128i bound = _mm_set1_epi8(static_cast<char>(limit));
        return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(_mm_min_epu8(_bytes, bound), _bytes)));
    }

private:
    __m128i _bytes;
#else
    std::uint32_t equalTo(char byte) const noexcept {
        std::uint32_t mask = 0;
        for (std::size_t index = 0; index < size; ++index) {
            mask |= std::uint32_t{_bytes[index] == byte} << index;
        }
        return mask;
    }

    std::uint32_t atMost(unsigned char limit) const noexcept {
        std::uint32_t mask = 0;
        for (std::size_t index = 0; index < size; ++index) {
            mask |= std::uint32_t{static_cast<unsigned char>(_bytes[index]) <= limit} << index;
        }
        return mask;
    }

private:
    std::array<char, size> _bytes;
#endif
};

/// The first place in [`from`, `end`) that holds one of `wanted`, or `end`.
template <char... wanted>
const char* findAny(const char* from, const char* end) noexcept {
    while (static_cast<std::size_t>(end - from) >= ByteBlock::size) {
        const ByteBlock block(from);
        const std::uint32_t found = (block.equalTo(wanted) | ...);
        if (found != 0) {
            return from + std::countr_zero(found);
        }
        from += ByteBlock::size;
    }
    while (from != end && ((*from != wanted) && ...)) {
        ++from;
    }
    return from;
}

} // namespace brindle::html
