#pragma once

#include "desktop/windows/QtPlayer.hpp"

#include <QPointer>
#include <QWidget>

class QLabel;
class QSlider;

namespace brindle::desktop {

class SymbolButton;

/// Play and pause, the position, the volume. Space plays and pauses. Thread: main.
class PlayerControls : public QWidget {
    Q_OBJECT

public:
    explicit PlayerControls(QWidget* parent);

    /// What the controls are for from now on; null: nothing. Does not keep it.
    void setPlayer(QtPlayer* player);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void follow(QtPlayer& player);
    void togglePlayback();
    void showPlayback();
    void showPosition();
    void applyVolume();

    SymbolButton* const _playButton;
    QSlider* const _position; ///< in seconds
    QLabel* const _time;
    SymbolButton* const _muteButton;
    QSlider* const _volume; ///< from 0 to 100
    QPointer<QtPlayer> _player;
};

} // namespace brindle::desktop
