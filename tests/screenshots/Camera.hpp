#pragma once

#include <QString>
#include <filesystem>
#include <string>

class QWidget;

namespace brindle::desktop {

/// Takes pictures of windows into a folder. Thread: main.
class Camera {
public:
    explicit Camera(std::filesystem::path folder) : _folder(std::move(folder)) {}

    /// As "NAME.png", once the window has settled. False where that could not be written.
    bool take(QWidget& window, const std::string& name) const;

    /// The window on the screen with that title; null for none.
    static QWidget* windowWithTitle(const std::string& title);
    /// Any window on the screen; null for none.
    static QWidget* window();
    /// Lets everything that waits happen.
    static void settle();

private:
    const std::filesystem::path _folder;
};

} // namespace brindle::desktop
