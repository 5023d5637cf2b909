#include "desktop/toolkit/Images.hpp"

#include "desktop/toolkit/ImageIconEngine.hpp"
#include "desktop/toolkit/Text.hpp"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <list>
#include <string_view>
#include <utility>

namespace brindle::desktop::images {

namespace {

/// The desktop's own images, by the names that the program has for them.
struct SystemImage {
    std::string_view name;
    std::string_view file;
    const char* theme; ///< what the icon themes call it; null: always our own drawing
};

constexpr std::array<SystemImage, 4> systemImages = {{
    {"NSImageNameFolder", "folder", nullptr},
    {"NSImageNameFolderSmart", "folder_smart", nullptr},
    {"NSImageNameStatusUnavailable", "status_unavailable", nullptr},
    {"NSImageNameCaution", "caution", "dialog-warning"},
}};

constexpr std::string_view defaultFeedIcon = "default_feed_icon";
constexpr qreal slashWidth = 2;                           // points
constexpr int largestPicture = (maximumPixels * 8) >> 20; // megabytes; 16 bits for each of four channels

qint64 pixelCount(QSize size) {
    return qint64(size.width()) * size.height();
}

QRectF fitted(QSizeF content, QSizeF frame) {
    const QSizeF size = content.scaled(frame, Qt::KeepAspectRatio);
    return {QPointF((frame.width() - size.width()) / 2, (frame.height() - size.height()) / 2), size};
}

/// False where there is no such file.
bool drawFile(QPainter& painter, const QString& file, QSize pixels) {
    if (!QFile::exists(file))
        return false;
    QSvgRenderer renderer(file);
    renderer.render(&painter, fitted(renderer.defaultSize(), pixels));
    return true;
}

void drawNamed(QPainter& painter, std::string_view name, QSize pixels, const QColor& color) {
    const auto* const system =
        std::find_if(systemImages.begin(), systemImages.end(), [&](const SystemImage& each) { return each.name == name; });
    if (system != systemImages.end()) {
        const QIcon themed = system->theme ? QIcon::fromTheme(QString::fromLatin1(system->theme)) : QIcon();
        if (!themed.isNull())
            return themed.paint(&painter, QRect(QPoint(), pixels));
        name = system->file;
    }
    const QString base = QStringLiteral(":/brindle/images/") + toQString(name);
    if (drawFile(painter, base + QStringLiteral(".svg"), pixels) || !drawFile(painter, base + QStringLiteral("-symbolic.svg"), pixels))
        return;
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRect(QPoint(), pixels), color);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void drawData(QPainter& painter, const std::string& bytes, QSize pixels, const QColor& color) {
    const std::optional<QImage> image = decoded(bytes, pixels);
    if (!image)
        return drawNamed(painter, defaultFeedIcon, pixels, color);
    const QRectF place = fitted(image->size(), pixels);
    // Scaled down by itself: a painter's smoothing looks at four pixels only.
    const QImage scaled = image->scaled(place.size().toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(place.topLeft().toPoint(), scaled);
}

void drawSlash(QPainter& painter, QSize pixels, qreal scale) {
    painter.setPen(QPen(QColor(255, 0, 0), slashWidth * scale, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, pixels.height()), QPointF(pixels.width(), 0));
}

/// Whether each dash pattern of a drawing says that there is none.
bool hasNoDashes(std::string_view text) {
    constexpr std::string_view name = "dasharray";
    for (auto place = text.find(name); place != std::string_view::npos; place = text.find(name, place + 1)) {
        const auto value = text.find_first_not_of(" :='\"", place + name.size());
        if (value == std::string_view::npos || !text.substr(value).starts_with("none"))
            return false;
    }
    return true;
}

/// Whether a drawing (SVG) can take no more work than its length: a few bytes may repeat others any number of times, cut lines into
/// millions of dashes, or unpack to gigabytes.
bool isModestDrawing(std::string_view bytes) {
    constexpr std::size_t longest = 32 * 1024;
    constexpr std::array<std::string_view, 5> costly = {"<use", ":use", "<image", "<!ENTITY", "&#"};
    return bytes.size() <= longest && bytes.find("<svg") != std::string_view::npos && hasNoDashes(bytes) &&
           std::none_of(costly.begin(), costly.end(), [&](std::string_view each) { return bytes.find(each) != std::string_view::npos; });
}

/// Goes to the picture that is the smallest of those that are large enough, else to the largest.
void selectPicture(QImageReader& reader, QSize wanted) {
    const int count = std::min(reader.imageCount(), 64);
    if (count < 2)
        return;
    int best = 0;
    int bestSide = 0;
    for (int i = 0; i < count; ++i) {
        if (!reader.jumpToImage(i))
            continue;
        const int side = reader.size().width();
        const bool isBetter = bestSide < wanted.width() ? side > bestSide : side >= wanted.width() && side < bestSide;
        if (isBetter)
            std::tie(best, bestSide) = std::pair(i, side);
    }
    reader.jumpToImage(best);
}

/// Icons of images that were shown lately. Each keeps its image, so that no other one has the same bytes in the same place.
class RecentIcons {
public:
    QIcon icon(const Image& image) {
        const auto found = std::find_if(_icons.begin(), _icons.end(), [&](const auto& each) { return isSame(each.first, image); });
        if (found != _icons.end()) {
            _icons.splice(_icons.begin(), _icons, found);
        } else {
            _icons.emplace_front(image, QIcon(new ImageIconEngine(image)));
            if (_icons.size() > capacity)
                _icons.pop_back();
        }
        return _icons.front().second;
    }

private:
    static constexpr std::size_t capacity = 32;

    /// Whether both are copies of one image: bytes are not compared.
    static bool isSame(const Image& a, const Image& b) {
        return &a.data() == &b.data() && a.size() == b.size() && a.isSlashed() == b.isSlashed();
    }

    std::list<std::pair<Image, QIcon>> _icons;
};

} // namespace

QIcon icon(const Image& image) {
    // Dies with the application object, which icons need.
    static RecentIcons* recent = nullptr;
    if (!recent) {
        recent = new RecentIcons;
        qAddPostRoutine([] { delete std::exchange(recent, nullptr); });
    }
    return recent->icon(image);
}

QPixmap pixmap(const Image& image, Image::Size fallback, qreal devicePixelRatio) {
    const Image::Size points = image.size().value_or(fallback);
    const QSize pixels = (QSizeF(points.width, points.height) * devicePixelRatio).toSize();
    const QColor color = QGuiApplication::palette().color(QPalette::WindowText);
    QPixmap result = QPixmap::fromImage(drawing(image, pixels, devicePixelRatio, color));
    result.setDevicePixelRatio(devicePixelRatio);
    return result;
}

QImage drawing(const Image& image, QSize pixels, qreal scale, const QColor& color) {
    if (pixels.isEmpty())
        return {};
    QImage result(pixels, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    if (image.kind() == Image::Kind::named)
        drawNamed(painter, image.name(), pixels, color);
    else if (image.kind() == Image::Kind::defaultFeedIcon)
        drawNamed(painter, defaultFeedIcon, pixels, color);
    else
        drawData(painter, image.data(), pixels, color);
    if (image.isSlashed())
        drawSlash(painter, pixels, scale);
    return result;
}

std::optional<QImage> decoded(const std::string& bytes, QSize pixels) {
    if (bytes.empty() || bytes.size() > maximumBytes)
        return std::nullopt;
    QByteArray view = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&view);
    if (!buffer.open(QIODevice::ReadOnly))
        return std::nullopt;
    // A picture inside an icon file may be larger than the file's head says, which is all that is known before it is read.
    QImageReader::setAllocationLimit(largestPicture);
    QImageReader reader(&buffer);
    const bool isDrawing = reader.format() == "svg" || reader.format() == "svgz";
    // Before its size is asked, for which it is read.
    if (isDrawing && !isModestDrawing(bytes))
        return std::nullopt;
    selectPicture(reader, pixels);
    const QSize size = reader.size();
    if (isDrawing)
        reader.setScaledSize(size.scaled(pixels, Qt::KeepAspectRatio));
    else if (size.isEmpty() || pixelCount(size) > maximumPixels)
        return std::nullopt;
    else if (std::max(size.width(), size.height()) > maximumSide)
        reader.setScaledSize(size.scaled(maximumSide, maximumSide, Qt::KeepAspectRatio));
    QImage image = reader.read();
    return image.isNull() || pixelCount(image.size()) > maximumPixels ? std::nullopt : std::optional(std::move(image));
}

} // namespace brindle::desktop::images
