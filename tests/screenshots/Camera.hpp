#pragma once

#include <QApplication>
#include <QImage>
#include <QWidget>
#include <filesystem>
#include <string>
#include <utility>

namespace brindle::desktop {

/// Takes pictures of windows into a folder. Thread: main.
class Camera {
public:
    explicit Camera(std::filesystem::path folder) : _folder(std::move(folder)) {}

    /// As "NAME.png", once the window has settled. False where that could not be written.
    bool take(QWidget& window, const std::string& name) const;
    bool save(const QImage& picture, const std::string& name) const;

    /// The window on the screen with that title; null for none.
    static QWidget* windowWithTitle(const std::string& title);
    /// The window on the screen that is of this kind; null for none.
    template <typename Window>
    static Window* window() {
        for (QWidget* const each : QApplication::topLevelWidgets()) {
            if (auto* const found = qobject_cast<Window*>(each); found && found->isVisible())
                return found;
        }
        return nullptr;
    }
    /// Lets everything that waits happen.
    static void settle();

private:
    const std::filesystem::path _folder;
};

} // namespace brindle::desktop
