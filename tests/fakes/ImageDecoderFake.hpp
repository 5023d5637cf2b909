#pragma once

#include "platform/ImageDecoder.hpp"

#include <string>
#include <vector>

namespace brindle {

/// Logs what it is asked, and takes all bytes but "bad" for an image.
class ImageDecoderFake : public ImageDecoder {
public:
    std::optional<Image> decode(const std::string& bytes) override {
        log.push_back(bytes);
        return bytes == "bad" ? std::nullopt : std::optional(Image::withData(bytes));
    }

    std::vector<std::string> log;
};

} // namespace brindle
