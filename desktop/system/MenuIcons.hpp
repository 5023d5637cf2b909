#pragma once

#include "platform/Image.hpp"

#include <QByteArray>
#include <QRgb>
#include <map>
#include <tuple>
#include <utility>

namespace brindle::desktop {

/// The icons of an exported menu, as the files that go over the bus. Many items share an image, which is drawn once. Thread: main.
class MenuIcons {
public:
    /// A PNG file of `side` points, or of the image's own size; in the colours of the present palette.
    QByteArray data(const Image& image);
    void clear() { _icons.clear(); }

private:
    static constexpr int side = 16;

    /// What copies of an image have in common, its size, whether it is slashed, and the colour of letters.
    using Key = std::tuple<const std::string*, double, double, bool, QRgb>;

    /// Each keeps its image, so that no other one has the same bytes in the same place.
    std::map<Key, std::pair<Image, QByteArray>> _icons;
};

} // namespace brindle::desktop
