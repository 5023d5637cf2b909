#include "platform/Image.hpp"

#include <utility>

namespace brindle {

Image::Image(std::shared_ptr<const Content> content, const Look& look)
    : _content(std::move(content)), _look(std::make_shared<const Look>(look)) {}

Image Image::named(std::string name) {
    return {std::make_shared<const Content>(Content{Kind::named, std::move(name), {}}), {}};
}

Image Image::defaultFeedIcon() {
    static const auto content = std::make_shared<const Content>(Content{Kind::defaultFeedIcon, {}, {}});
    return {content, {}};
}

Image Image::withData(std::string bytes) {
    return {std::make_shared<const Content>(Content{Kind::data, {}, std::move(bytes)}), {}};
}

Image Image::resized(Size size) const {
    return {_content, {size, isSlashed()}};
}

Image Image::slashed() const {
    return {_content, {size(), true}};
}

bool operator==(const Image& a, const Image& b) {
    const bool showTheSame = a._content == b._content || (a.kind() == b.kind() && a.name() == b.name() && a.data() == b.data());
    return showTheSame && *a._look == *b._look;
}

} // namespace brindle
