#include "html/EscapedText.hpp"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "html/AsciiText.hpp"

namespace brindle::html {

namespace {

constexpr char noBreakSpaceLead = '\xC2';
constexpr char noBreakSpaceTrail = '\xA0';
constexpr std::size_t longestReference = 6;
constexpr std::uint32_t behindBlock = 1U << ByteBlock::size;

class Escaper {
public:
    Escaper(OutputBuffer& output, std::string_view text, EscapedCharacters escaped, bool collapsesBlanks) noexcept
        : _output(output), _at(text.data()), _end(_at + text.size()), _escaped(escaped), _collapsesBlanks(collapsesBlanks) {}

    void run() {
        while (_at != _end) {
            _output.ensureRoom(ByteBlock::size + longestReference);
            const auto left = static_cast<std::size_t>(_end - _at);
            if (left >= ByteBlock::size) {
                copyPlain(ByteBlock(_at), ByteBlock::size);
            } else {
                std::array<char, ByteBlock::size> tail{};
                std::memcpy(tail.data(), _at, left);
                copyPlain(ByteBlock(tail.data()), left);
            }
        }
    }

private:
    /// Copies what needs no care of the `size` bytes at hand, and deals with the character behind it.
    void copyPlain(const ByteBlock& block, std::size_t size) {
        const std::uint32_t blanks = block.equalTo(' ');
        const std::uint32_t stops = stopsIn(block, blanks) | behindBlock;
        const auto plain = std::min(size, static_cast<std::size_t>(std::countr_zero(stops)));
        _output.put(block, plain);
        _at += plain;
        if (plain != 0) {
            _isBehindBlank = ((blanks >> (plain - 1)) & 1U) != 0;
        }
        if (plain != size) {
            putSpecial();
        }
    }

    std::uint32_t stopsIn(const ByteBlock& block, std::uint32_t blanks) const noexcept {
        std::uint32_t stops = block.equalTo('&') | block.equalTo(noBreakSpaceLead);
        stops |= _escaped.lessThan ? block.equalTo('<') : 0;
        stops |= _escaped.greaterThan ? block.equalTo('>') : 0;
        stops |= _escaped.quote ? block.equalTo('"') : 0;
        if (_collapsesBlanks) {
            // Lone blanks, by far the most of white space, stay as they are.
            stops |= block.atMost('\x1F') | (blanks & ((blanks << 1) | std::uint32_t{_isBehindBlank}));
        }
        return stops;
    }

    void putSpecial() {
        const char special = *_at++;
        if (_collapsesBlanks && isAsciiWhitespace(special)) {
            if (!_isBehindBlank) {
                _output.put(' ');
                _isBehindBlank = true;
            }
            while (_at != _end && isAsciiWhitespace(*_at)) {
                ++_at;
            }
            return;
        }
        _isBehindBlank = false;
        switch (special) {
        case '&':
            return _output.put("&amp;");
        case '<':
            return _output.put("&lt;");
        case '>':
            return _output.put("&gt;");
        case '"':
            return _output.put("&quot;");
        case noBreakSpaceLead:
            if (_at != _end && *_at == noBreakSpaceTrail) {
                ++_at;
                return _output.put("&nbsp;");
            }
            [[fallthrough]];
        default:
            _output.put(special);
        }
    }

    OutputBuffer& _output;
    const char* _at;
    const char* const _end;
    const EscapedCharacters _escaped;
    const bool _collapsesBlanks;
    bool _isBehindBlank = false;
};

} // namespace

void appendEscaped(OutputBuffer& output, std::string_view text, EscapedCharacters escaped, bool collapsesBlanks) {
    Escaper(output, text, escaped, collapsesBlanks).run();
}

} // namespace brindle::html
