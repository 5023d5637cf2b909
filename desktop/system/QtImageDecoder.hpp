#pragma once

#include "desktop/toolkit/Images.hpp"
#include "platform/ImageDecoder.hpp"

namespace brindle::desktop {

/// Knows the formats that the toolkit can read. Thread: main.
class QtImageDecoder : public ImageDecoder {
public:
    std::optional<Image> decode(const std::string& bytes) override {
        return images::decoded(bytes, QSize(iconSide, iconSide)) ? std::optional(Image::withData(bytes)) : std::nullopt;
    }

private:
    static constexpr int iconSide = 32;
};

} // namespace brindle::desktop
