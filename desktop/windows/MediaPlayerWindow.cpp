#include "desktop/windows/MediaPlayerWindow.hpp"

#include <QShortcut>
#include <utility>

namespace brindle::desktop {

MediaPlayerWindow::MediaPlayerWindow(WindowEnvironment environment)
    : QtWindow(std::move(environment)), _playerView(std::make_shared<MediaPlayerView>(&widget())) {
    widget().setCentralWidget(&_playerView->widget());
    _playerView->widget().setFocus();
    for (const QKeySequence::StandardKey key : {QKeySequence::Cancel, QKeySequence::Close})
        connect(new QShortcut(key, &widget()), &QShortcut::activated, this, [this] { close(); });
}

} // namespace brindle::desktop
