#include "tests/screenshots/Camera.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QEventLoop>
#include <QPixmap>
#include <QTimer>
#include <iostream>

namespace brindle::desktop {

void Camera::settle() {
    constexpr int whileThingsMove = 400; // milliseconds
    QEventLoop loop;
    QTimer::singleShot(whileThingsMove, &loop, &QEventLoop::quit);
    loop.exec();
}

QWidget* Camera::windowWithTitle(const std::string& title) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && fromQString(window->windowTitle()) == title)
            return window;
    }
    return nullptr;
}

bool Camera::take(QWidget& window, const std::string& name) const {
    settle();
    return save(window.grab().toImage(), name);
}

bool Camera::save(const QImage& picture, const std::string& name) const {
    const std::filesystem::path file = _folder / (name + ".png");
    const bool isSaved = picture.save(toQString(file.string()));
    if (!isSaved)
        std::cerr << "could not write " << file << '\n';
    return isSaved;
}

} // namespace brindle::desktop
