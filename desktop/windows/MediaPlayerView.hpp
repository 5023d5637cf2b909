#pragma once

#include "desktop/windows/QtPlayer.hpp"
#include "platform/Player.hpp"

#include <QWidget>
#include <memory>

class QVideoWidget;

namespace brindle::desktop {

class PlayerControls;

/// The controls of a player, below the video where there is one. Where the system has nothing to play with, its players fail. The widget
/// belongs to its parent. Thread: main.
class MediaPlayerView : public PlayerView {
public:
    explicit MediaPlayerView(QWidget* parent);

    QWidget& widget() const { return *_widget; }
    /// Null for none, and for one that can't play.
    QtPlayer* shownPlayer() const { return dynamic_cast<QtPlayer*>(_player.get()); }

    std::shared_ptr<Player> makePlayer(const URL& url) override;
    std::shared_ptr<Player> player() const override { return _player; }
    void setPlayer(std::shared_ptr<Player> player) override;

private:
    QWidget* const _widget;
    QVideoWidget* const _video; ///< null where there is nothing to play with
    PlayerControls* const _controls;
    std::shared_ptr<Player> _player;
};

} // namespace brindle::desktop
