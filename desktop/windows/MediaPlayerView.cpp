#include "desktop/windows/MediaPlayerView.hpp"

#include "desktop/windows/FailedPlayer.hpp"
#include "desktop/windows/MediaBackend.hpp"
#include "desktop/windows/PlayerControls.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QVBoxLayout>
#include <QVideoWidget>
#include <utility>

namespace brindle::desktop {

MediaPlayerView::MediaPlayerView(QWidget* parent)
    : _widget(new QWidget(parent)), _video(hasMediaBackend() ? new QVideoWidget(_widget) : nullptr),
      _controls(new PlayerControls(_widget)) {
    _widget->setFocusProxy(_controls);
    auto* const column = new QVBoxLayout(_widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    if (_video) {
        constexpr QSize videoSize(480, 270); // points
        _video->setFixedSize(videoSize);
        _video->hide();
        column->addWidget(_video);
    }
    column->addWidget(_controls);
}

std::shared_ptr<Player> MediaPlayerView::makePlayer(const URL& url) {
    if (!_video)
        return std::make_shared<FailedPlayer>(localized("This system has nothing that plays audio and video."));
    return std::make_shared<QtPlayer>(url, _video);
}

void MediaPlayerView::setPlayer(std::shared_ptr<Player> player) {
    if (QtPlayer* const old = shownPlayer())
        old->media().disconnect(_video);
    _player = std::move(player);
    QtPlayer* const shown = shownPlayer();
    _controls->setPlayer(shown);
    if (!_video)
        return;
    _video->setVisible(shown && shown->media().hasVideo());
    if (shown)
        QObject::connect(&shown->media(), &QMediaPlayer::hasVideoChanged, _video, &QWidget::setVisible);
}

} // namespace brindle::desktop
