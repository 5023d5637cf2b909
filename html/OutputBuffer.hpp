#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "html/ByteBlock.hpp"

namespace brindle::html {

/// Text in the making, with room for short pieces checked once for several of them.
class OutputBuffer {
public:
    explicit OutputBuffer(std::size_t expectedSize) {
        _text.reserve(expectedSize);
        _at = _end = _text.data();
    }
    OutputBuffer(const OutputBuffer&) = delete;
    OutputBuffer& operator=(const OutputBuffer&) = delete;

    /// Sees to it that `size` more bytes can be put.
    void ensureRoom(std::size_t size) {
        if (static_cast<std::size_t>(_end - _at) < size) {
            grow(size);
        }
    }

    /// Needs room.
    void put(char byte) noexcept { *_at++ = byte; }

    /// Needs room.
    void put(std::string_view text) noexcept {
        std::char_traits<char>::copy(_at, text.data(), text.size());
        _at += text.size();
    }

    /// Puts the first `count` bytes of a block; needs room for the whole of it.
    void put(const ByteBlock& block, std::size_t count) noexcept {
        block.store(_at);
        _at += count;
    }

    /// Puts the first `count` bytes of `padded`; needs room for the whole of it.
    template <std::size_t size>
    void putPadded(const std::array<char, size>& padded, std::size_t count) noexcept {
        std::memcpy(_at, padded.data(), size);
        _at += count;
    }

    void append(std::string_view text) {
        ensureRoom(text.size());
        put(text);
    }

    void append(std::size_t count, char byte) {
        ensureRoom(count);
        std::memset(_at, byte, count);
        _at += count;
    }

    std::string take() && {
        _text.resize(size());
        return std::move(_text);
    }

private:
    std::size_t size() const noexcept { return static_cast<std::size_t>(_at - _text.data()); }

    void grow(std::size_t room) {
        // In steps, so that the zeros that fill new room are still near at hand when they are written over.
        constexpr std::size_t step = 16384;
        const std::size_t used = size();
        _text.resize(used + room + step);
        _at = _text.data() + used;
        _end = _text.data() + _text.size();
    }

    std::string _text;
    char* _at = nullptr;
    char* _end = nullptr;
};

} // namespace brindle::html
