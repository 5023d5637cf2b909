#include "html/EscapedText.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "html/AsciiText.hpp"
#include "html/ByteBlock.hpp"

namespace brindle::html {

namespace {

constexpr char noBreakSpaceLead = '\xC2';
constexpr char noBreakSpaceTrail = '\xA0';

/// What is put for a byte that stops the copying.
struct Replacement {
    std::array<char, 7> text{};
    std::uint8_t length = 1;
};
static_assert(sizeof(Replacement) == 8);

constexpr Replacement replacementOf(std::string_view text) {
    Replacement replacement;
    std::copy(text.begin(), text.end(), replacement.text.begin());
    replacement.length = static_cast<std::uint8_t>(text.size());
    return replacement;
}

constexpr auto replacements = [] {
    std::array<Replacement, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        table[byte].text[0] = static_cast<char>(byte);
    }
    table['&'] = replacementOf("&amp;");
    table['<'] = replacementOf("&lt;");
    table['>'] = replacementOf("&gt;");
    table['"'] = replacementOf("&quot;");
    return table;
}();

constexpr std::string_view noBreakSpaceReference = "&nbsp;";

/// A stretch is read in blocks from any of its places, so this many bytes behind its last block must be readable as well.
constexpr std::size_t stretchSize = 2 * ByteBlock::size;

template <EscapedPlace place>
ByteBlock::Matches specialsIn(const ByteBlock& block) noexcept {
    const ByteBlock::Matches common = block.equalTo('&') | block.equalTo(noBreakSpaceLead);
    if constexpr (place == EscapedPlace::text) {
        return common | block.equalTo('<') | block.equalTo('>');
    } else if constexpr (place == EscapedPlace::collapsedText) {
        return common | block.equalTo('<') | block.equalTo('>') | block.atMost('\x1F');
    } else if constexpr (place == EscapedPlace::htmlAttribute) {
        return common | block.equalTo('"');
    } else {
        return common | block.equalTo('"') | block.equalTo('<');
    }
}

template <EscapedPlace place>
class Escaper {
public:
    Escaper(OutputBuffer& output, std::string_view text) noexcept : _output(output), _text(text) {}

    void run() {
        const char* at = _text.data();
        const char* const end = at + _text.size();
        char before = 'x';
        while (static_cast<std::size_t>(end - at) >= stretchSize) {
            const char* const next = escapeBlock(at, end, before);
            before = next[-1];
            at = next;
        }
        // What is left is moved to where the bytes behind it can be read.
        std::array<char, 2 * stretchSize> tail{};
        const auto left = static_cast<std::size_t>(end - at);
        std::char_traits<char>::copy(tail.data(), at, left);
        const char* const tailEnd = tail.data() + left;
        for (at = tail.data(); at < tailEnd; before = at[-1]) {
            at = escapeBlock(at, tailEnd, before);
        }
    }

private:
    /// Writes the block at `start`, or what of it lies before `end`, and gives the place behind what was written.
    const char* escapeBlock(const char* start, const char* end, char before) {
        constexpr std::size_t roomForBlock = ByteBlock::size * noBreakSpaceReference.size() + ByteBlock::size;
        _output.ensureRoom(roomForBlock);
        const auto size = std::min(ByteBlock::size, static_cast<std::size_t>(end - start));
        std::uint32_t stops = stopsIn(ByteBlock(start), before) | (1U << size);
        const char* at = start;
        for (;;) {
            const char* const stop = start + std::countr_zero(stops);
            _output.put(ByteBlock(at), static_cast<std::size_t>(stop - at));
            if (stop == start + size) {
                return stop;
            }
            at = putSpecial(stop, end, stop == start ? before : stop[-1]);
            if (at >= start + size) {
                return at;
            }
            stops &= ~std::uint32_t{0} << (at - start);
        }
    }

    static std::uint32_t stopsIn(const ByteBlock& block, char before) noexcept {
        const std::uint32_t stops = specialsIn<place>(block).bits();
        if constexpr (place != EscapedPlace::collapsedText) {
            return stops;
        }
        // Lone blanks, by far the most of white space, are copied.
        const std::uint32_t blanks = block.equalTo(' ').bits();
        return stops | (blanks & ((blanks << 1) | std::uint32_t{before == ' '}));
    }

    /// Writes what stands for the byte at `at`, and gives the place behind what it stands for.
    const char* putSpecial(const char* at, const char* end, char before) noexcept {
        const char special = *at++;
        if (place == EscapedPlace::collapsedText && isAsciiWhitespace(special)) {
            if (before != ' ') {
                _output.put(' ');
            }
            while (at != end && isAsciiWhitespace(*at)) {
                ++at;
            }
            return at;
        }
        if (special == noBreakSpaceLead && at != end && *at == noBreakSpaceTrail) {
            _output.put(noBreakSpaceReference);
            return at + 1;
        }
        const Replacement& replacement = replacements[static_cast<unsigned char>(special)];
        _output.putPadded(replacement.text, replacement.length);
        return at;
    }

    OutputBuffer& _output;
    const std::string_view _text;
};

} // namespace

void appendEscaped(OutputBuffer& output, std::string_view text, EscapedPlace place) {
    switch (place) {
    case EscapedPlace::text:
        return Escaper<EscapedPlace::text>(output, text).run();
    case EscapedPlace::collapsedText:
        return Escaper<EscapedPlace::collapsedText>(output, text).run();
    case EscapedPlace::htmlAttribute:
        return Escaper<EscapedPlace::htmlAttribute>(output, text).run();
    case EscapedPlace::xmlAttribute:
        return Escaper<EscapedPlace::xmlAttribute>(output, text).run();
    }
}

} // namespace brindle::html
