#pragma once

#include "platform/ImageDecoder.hpp"

namespace brindle {

/// Takes for an image what begins as one (MIME Sniffing, "matching an image type pattern"), for a program that shows none. Thread: any.
class ImageSignatures : public ImageDecoder {
public:
    std::optional<Image> decode(const std::string& bytes) override;
};

} // namespace brindle
