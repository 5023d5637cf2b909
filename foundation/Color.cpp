#include "foundation/Color.hpp"

#include "foundation/Coding.hpp"
#include "foundation/KeyedArchiver.hpp"
#include "foundation/KeyedUnarchiver.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace brindle {

namespace {

constexpr std::string_view className = "NSColor";

/// How the original platform numbers the ways to give a colour.
enum ColorSpace : std::int64_t { calibratedRGB = 1, deviceRGB = 2, calibratedWhite = 3, deviceWhite = 4 };

/// The two hexadecimal digits at `place` as a part.
std::optional<double> part(std::string_view text, std::size_t place) {
    const char* const end = text.data() + place + 2;
    unsigned value = 0;
    const auto result = std::from_chars(text.data() + place, end, value, 16);
    return result.ec == std::errc() && result.ptr == end ? std::optional(value / 255.0) : std::nullopt;
}

std::string numbersText(const std::vector<double>& numbers) {
    std::string text;
    for (const double number : numbers) {
        std::array<char, 32> digits{};
        const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
        text.append(text.empty() ? "" : " ").append(digits.data(), result.ptr);
    }
    return text;
}

/// The numbers of a text "r g b", made to lie between 0 and 1; none at all where any can't be read.
std::vector<double> numbers(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    std::vector<double> found;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        if (word.empty())
            continue;
        double number = 0;
        const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
        if (result.ec != std::errc() || result.ptr != word.data() + word.size() || !std::isfinite(number) || found.size() == 4)
            return {};
        found.push_back(std::clamp(number, 0.0, 1.0));
    }
    return found;
}

/// A colour in an archive.
class ArchivedColor : public Coding {
public:
    explicit ArchivedColor(const Color& value) : color(value) {}

    static std::shared_ptr<ArchivedColor> decode(const Decoder& decoder) {
        const auto space = decoder.decodeInteger("NSColorSpace");
        std::optional<Color> color;
        if (space == calibratedRGB || space == deviceRGB)
            color = rgb(numbers(decoder.decodeData("NSRGB").value_or(std::string())));
        else if (space == calibratedWhite || space == deviceWhite)
            color = white(numbers(decoder.decodeData("NSWhite").value_or(std::string())));
        return color ? std::make_shared<ArchivedColor>(*color) : nullptr;
    }

    std::vector<std::string_view> archiveClasses() const override { return {className}; }

    void encode(Coder& coder) const override {
        std::vector<double> parts = {color.red, color.green, color.blue};
        if (color.alpha != 1)
            parts.push_back(color.alpha);
        coder.encode("NSColorSpace", static_cast<std::int64_t>(calibratedRGB));
        coder.encode("NSRGB", PropertyList::Data{numbersText(parts) + '\0'});
    }

    const Color color;

private:
    static std::optional<Color> rgb(const std::vector<double>& parts) {
        if (parts.size() < 3)
            return std::nullopt;
        return Color{parts[0], parts[1], parts[2], parts.size() == 4 ? parts[3] : 1};
    }

    static std::optional<Color> white(const std::vector<double>& parts) {
        if (parts.empty() || parts.size() > 2)
            return std::nullopt;
        return Color{parts[0], parts[0], parts[0], parts.size() == 2 ? parts[1] : 1};
    }
};

} // namespace

const Color Color::black = {};
const Color Color::systemGray = {0x8E / 255.0, 0x8E / 255.0, 0x93 / 255.0, 1};

std::optional<Color> Color::make(std::string_view text) {
    if (text.size() != 7 || text[0] != '#')
        return std::nullopt;
    const auto red = part(text, 1);
    const auto green = part(text, 3);
    const auto blue = part(text, 5);
    if (!red || !green || !blue)
        return std::nullopt;
    return Color{*red, *green, *blue, 1};
}

std::string Color::hexString() const {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (const double part : {red, green, blue}) {
        const auto step = static_cast<std::size_t>(std::lround(std::clamp(part, 0.0, 1.0) * 255));
        text += digits[step / 16];
        text += digits[step % 16];
    }
    return text;
}

tl::expected<std::string, PropertyList::Error> Color::archivedData() const {
    return KeyedArchiver::archivedData(std::make_shared<ArchivedColor>(*this));
}

std::optional<Color> Color::unarchive(std::string_view bytes) {
    KeyedUnarchiver unarchiver;
    unarchiver.setClass(std::string(className), ArchivedColor::decode);
    const auto root = unarchiver.unarchive(bytes);
    const auto archived = root ? std::dynamic_pointer_cast<ArchivedColor>(*root) : nullptr;
    return archived ? std::optional(archived->color) : std::nullopt;
}

} // namespace brindle
