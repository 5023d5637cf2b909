#pragma once

#include "platform/Control.hpp"
#include "platform/Image.hpp"

#include <optional>

namespace brindle {

/// A place for an image. Thread: main.
class ImageView : public Control {
public:
    const std::optional<Image>& image() const { return _image; }
    void setImage(std::optional<Image> image) { set(_image, std::move(image)); }

private:
    std::optional<Image> _image;
};

} // namespace brindle
