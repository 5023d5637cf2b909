#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace brindle::html {

/// Sixteen bytes of text that are looked at together.
/// Uses the processor's vector unit where the build has it, and plain loops elsewhere. Safe on every thread.
class ByteBlock {
public:
    static constexpr std::size_t size = 16;

#if defined(__SSE2__)
    using Bytes = __m128i;
#else
    using Bytes = std::array<unsigned char, size>;
#endif

    /// Which bytes of a block a question is true for.
    class Matches {
    public:
        explicit Matches(const Bytes& set) noexcept : _set(set) {}

        Matches operator|(const Matches& other) const noexcept {
#if defined(__SSE2__)
            return Matches(_mm_or_si128(_set, other._set));
#else
            Bytes joined{};
            for (std::size_t index = 0; index < size; ++index) {
                joined[index] = _set[index] | other._set[index];
            }
            return Matches(joined);
#endif
        }

        /// One bit per byte, the lowest for the first byte.
        std::uint32_t bits() const noexcept {
#if defined(__SSE2__)
            return static_cast<std::uint32_t>(_mm_movemask_epi8(_set));
#else
            std::uint32_t mask = 0;
            for (std::size_t index = 0; index < size; ++index) {
                mask |= (_set[index] & 1U) << index;
            }
            return mask;
#endif
        }

    private:
        Bytes _set;
    };

    /// Reads `size` bytes at `from`.
    explicit ByteBlock(const char* from) noexcept {
        std::memcpy(&_bytes, from, size);
    }

    void store(char* to) const noexcept {
        std::memcpy(to, &_bytes, size);
    }

    Matches equalTo(char byte) const noexcept {
#if defined(__SSE2__)
        return Matches(_mm_cmpeq_epi8(_bytes, _mm_set1_epi8(byte)));
#else
        return matching([=](unsigned char each) { return each == static_cast<unsigned char>(byte); });
#endif
    }

    /// The bytes whose unsigned value is at most `limit`.
    Matches atMost(unsigned char limit) const noexcept {
#if defined(__SSE2__)
        return Matches(_mm_cmpeq_epi8(_mm_min_epu8(_bytes, _mm_set1_epi8(static_cast<char>(limit))), _bytes));
#else
        return matching([=](unsigned char each) { return each <= limit; });
#endif
    }

private:
#if !defined(__SSE2__)
    template <typename Question>
    Matches matching(Question question) const noexcept {
        Bytes set{};
        for (std::size_t index = 0; index < size; ++index) {
            set[index] = question(_bytes[index]) ? 0xFF : 0;
        }
        return Matches(set);
    }
#endif

    Bytes _bytes;
};

/// The first place in [`from`, `end`) that holds one of `wanted`, or `end`.
template <char... wanted>
const char* findAny(const char* from, const char* end) noexcept {
    while (static_cast<std::size_t>(end - from) >= ByteBlock::size) {
        const ByteBlock block(from);
        const std::uint32_t found = (block.equalTo(wanted) | ...).bits();
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
