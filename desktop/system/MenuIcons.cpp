#include "desktop/system/MenuIcons.hpp"

#include "desktop/toolkit/Images.hpp"

#include <QBuffer>
#include <QGuiApplication>
#include <QPalette>

namespace brindle::desktop {

QByteArray MenuIcons::data(const Image& image) {
    const Image::Size size = image.size().value_or(Image::Size{side, side});
    const QRgb color = QGuiApplication::palette().color(QPalette::WindowText).rgba();
    const Key key = {&image.data(), size.width, size.height, image.isSlashed(), color};
    if (const auto known = _icons.find(key); known != _icons.end())
        return known->second.second;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    images::pixmap(image, size, 1).save(&buffer, "PNG");
    _icons.emplace(key, std::pair(image, bytes));
    return bytes;
}

} // namespace brindle::desktop
