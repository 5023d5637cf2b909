#include "desktop/windows/WindowFrame.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QWidget>
#include <algorithm>
#include <array>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr qsizetype numberCount = 4;
constexpr int largestSide = 32'767; // what X11 has for a window's side
constexpr int titleHeight = 20;     // of the narrower ones
constexpr int leastVisible = 40;    // so much of a frame, across and down, is enough to take hold of it
const QLatin1String maximizedMark("maximized");

bool isOnScreen(const QRect& frame) {
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        const QRect seen = screen->availableGeometry().intersected(frame);
        return seen.width() >= leastVisible && seen.height() >= leastVisible;
    });
}

/// A screen may have become smaller since.
QRect fittedToScreens(const QRect& frame) {
    QRect desktop;
    for (const QScreen* const screen : QGuiApplication::screens())
        desktop |= screen->availableGeometry();
    const bool isTooLarge = frame.width() > desktop.width() || frame.height() > desktop.height();
    return isTooLarge ? fitted(frame, desktop) : frame;
}

std::optional<QRect> frameOf(const QStringList& words) {
    if (words.size() < numberCount)
        return std::nullopt;
    std::array<int, numberCount> numbers{};
    for (qsizetype i = 0; i < numberCount; ++i) {
        bool isNumber = false;
        numbers[static_cast<std::size_t>(i)] = words[i].toInt(&isNumber);
        if (!isNumber || std::abs(words[i].toInt()) > largestSide)
            return std::nullopt;
    }
    const QRect frame(numbers[0], numbers[1], numbers[2], numbers[3]);
    return frame.isEmpty() || !isOnScreen(frame) ? std::nullopt : std::optional(fittedToScreens(frame));
}

/// Leaves room for a title, by which a window is moved: a desktop that tells nobody where windows stand has them all in its corner.
QRect withRoomForTitle(QRect frame) {
    const QScreen* const screen = QGuiApplication::screenAt(frame.center());
    const QRect room = screen ? screen->availableGeometry().adjusted(0, titleHeight, 0, 0) : frame;
    if (frame.top() < room.top()) {
        frame.moveTop(room.top());
        frame.setBottom(std::min(frame.bottom(), room.bottom()));
    }
    return frame;
}

} // namespace

QRect fitted(QRect frame, const QRect& room) {
    frame.setSize(frame.size().boundedTo(room.size()));
    frame.moveRight(std::min(frame.right(), room.right()));
    frame.moveBottom(std::min(frame.bottom(), room.bottom()));
    frame.moveTopLeft({std::max(frame.left(), room.left()), std::max(frame.top(), room.top())});
    return frame;
}

WindowFrame::WindowFrame(std::shared_ptr<UserDefaults> defaults, std::string name)
    : _defaults(std::move(defaults)), _key("NSWindow Frame " + std::move(name)) {}

void WindowFrame::save(const QWidget& window) const {
    const QRect frame = window.isMaximized() ? window.normalGeometry() : window.geometry();
    QString text = QStringLiteral("%1 %2 %3 %4").arg(frame.x()).arg(frame.y()).arg(frame.width()).arg(frame.height());
    if (window.isMaximized())
        text += QLatin1Char(' ') + maximizedMark;
    if (const std::string value = fromQString(text); _defaults->stringForKey(_key) != value)
        _defaults->set(_key, value);
}

bool WindowFrame::restore(QWidget& window) const {
    const QStringList words = toQString(_defaults->stringForKey(_key).value_or("")).split(QLatin1Char(' '));
    const auto frame = frameOf(words);
    if (!frame)
        return false;
    window.setGeometry(withRoomForTitle(*frame));
    window.setWindowState(words.mid(numberCount).contains(maximizedMark) ? Qt::WindowMaximized : Qt::WindowNoState);
    return true;
}

} // namespace brindle::desktop
