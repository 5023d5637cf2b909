#pragma once

#include "platform/Image.hpp"

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <optional>

namespace brindle::desktop {

/// How the program's images look. Named images are drawings that come with the program; those of one colour take the colour of the letters
/// beside them, so that they are legible on light and on dark. An unknown name looks like nothing, bytes that are no image like
/// the default icon of feeds. Thread: main, after the application object was made.
namespace images {

/// Drawn for each size, scale and palette when it is shown.
QIcon icon(const Image& image);

/// At the image's own size in points, at `fallback` where it has none.
QPixmap pixmap(const Image& image, Image::Size fallback, qreal devicePixelRatio);

/// `pixels` wide and high, a point being `scale` pixels; images of one colour in `color`.
QImage drawing(const Image& image, QSize pixels, qreal scale, const QColor& color);

/// The bytes of an image file of any format that the toolkit knows, none larger than `maximumBytes` and `maximumPixels`; the picture that
/// suits `pixels` best where the file has several, and in any case not much larger than `maximumSide`. Absent for anything else.
std::optional<QImage> decoded(const std::string& bytes, QSize pixels);

inline constexpr std::size_t maximumBytes = 16 << 20;
inline constexpr int maximumSide = 1024;         ///< pixels
inline constexpr qint64 maximumPixels = 4 << 20; ///< a small file may hold many, which take their time; drawings have none

} // namespace images
} // namespace brindle::desktop
