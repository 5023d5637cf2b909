#pragma once

#include "platform/Size.hpp"

#include <memory>
#include <optional>
#include <string>

namespace brindle {

/// An image as the program names it, before a toolkit draws it: a named image of the resources or the system, the default icon of feeds, or
/// the bytes of an image file. A small value; copies share what they show. Images are equal when they show the same. Thread: any.
class Image {
public:
    enum class Kind { named, defaultFeedIcon, data };

    using Size = brindle::Size;

    static Image named(std::string name);
    static Image defaultFeedIcon();
    /// `bytes` is the file of an image in any format; whether it can be shown is not looked at. Bytes that a toolkit can't read are drawn
    /// as the default feed icon.
    static Image withData(std::string bytes);

    Kind kind() const { return _content->kind; }
    /// Empty unless named.
    const std::string& name() const { return _content->name; }
    /// Empty unless made of bytes.
    const std::string& data() const { return _content->data; }
    /// What the image is drawn at; absent: its own size.
    const std::optional<Size>& size() const { return _look->size; }
    /// Whether a red line of width 2 with round caps crosses it, from the lower left corner to the upper right one.
    bool isSlashed() const { return _look->isSlashed; }

    Image resized(Size size) const;
    Image slashed() const;

    friend bool operator==(const Image& a, const Image& b);

private:
    struct Content {
        Kind kind = Kind::named;
        std::string name;
        std::string data;
    };
    struct Look {
        std::optional<Size> size;
        bool isSlashed = false;

        friend bool operator==(const Look&, const Look&) = default;
    };

    Image(std::shared_ptr<const Content> content, const Look& look);

    std::shared_ptr<const Content> _content;
    std::shared_ptr<const Look> _look;
};

} // namespace brindle
