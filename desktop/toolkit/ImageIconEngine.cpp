#include "desktop/toolkit/ImageIconEngine.hpp"

#include "desktop/toolkit/Images.hpp"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOption>

namespace brindle::desktop {

namespace {

QColor letterColor(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled)
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    return palette.color(mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText);
}

} // namespace

void ImageIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
    const qreal scale = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    painter->drawPixmap(rect, scaledPixmap((QSizeF(rect.size()) * scale).toSize(), mode, state, scale));
}

QPixmap ImageIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    return scaledPixmap(size, mode, state, 1.0);
}

QPixmap ImageIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) {
    const QColor color = letterColor(mode);
    const Request request = {size, mode, color.rgba(), scale};
    if (!(request == _lastRequest)) {
        _lastPixmap = QPixmap::fromImage(images::drawing(_image, size, scale, color));
        if (mode == QIcon::Disabled) {
            QStyleOption option;
            option.palette = QGuiApplication::palette();
            _lastPixmap = QApplication::style()->generatedIconPixmap(mode, _lastPixmap, &option);
        }
        _lastRequest = request;
    }
    return _lastPixmap;
}

} // namespace brindle::desktop
