#pragma once

#include "platform/Image.hpp"

#include <optional>
#include <string>

namespace brindle {

/// Tells whether bytes are an image that can be shown. Thread: main.
class ImageDecoder {
public:
    virtual ~ImageDecoder() = default;
    /// Absent when they are none.
    virtual std::optional<Image> decode(const std::string& bytes) = 0;
};

} // namespace brindle
