#pragma once

#include "platform/Image.hpp"

#include <QIconEngine>
#include <QPixmap>

namespace brindle::desktop {

/// Draws an image for icons, in the colours of the present palette. Thread: main.
class ImageIconEngine : public QIconEngine {
public:
    explicit ImageIconEngine(Image image) : _image(std::move(image)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QIconEngine* clone() const override { return new ImageIconEngine(_image); }

private:
    /// What the last drawing was made for.
    struct Request {
        QSize size;
        QIcon::Mode mode = QIcon::Normal;
        QRgb color = 0;
        qreal scale = 0;

        friend bool operator==(const Request&, const Request&) = default;
    };

    const Image _image;
    Request _lastRequest;
    QPixmap _lastPixmap;
};

} // namespace brindle::desktop
