#include "desktop/windows/MediaPlayerView.hpp"

#include "desktop/windows/PlayerControls.hpp"

#include <QVBoxLayout>
#include <QVideoWidget>

namespace brindle::desktop {

MediaPlayerView::MediaPlayerView(QWidget* parent)
    : _widget(new QWidget(parent)), _video(new QVideoWidget(_widget)), _controls(new PlayerControls(_widget)) {
    constexpr QSize videoSize(480, 270); // points
    _video->setFixedSize(videoSize);
    _video->hide();
    _widget->setFocusProxy(_controls);
    auto* const column = new QVBoxLayout(_widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(_video);
    column->addWidget(_controls);
}

std::shared_ptr<Player> MediaPlayerView::makePlayer(const URL& url) {
    return std::make_shared<QtPlayer>(url, _video);
}

void MediaPlayerView::setPlayer(std::shared_ptr<Player> player) {
    if (_player)
        _player->media().disconnect(_video);
    _player = std::dynamic_pointer_cast<QtPlayer>(player);
    _controls->setPlayer(_player.get());
    _video->setVisible(_player && _player->media().hasVideo());
    if (_player)
        QObject::connect(&_player->media(), &QMediaPlayer::hasVideoChanged, _video, &QWidget::setVisible);
}

} // namespace brindle::desktop
