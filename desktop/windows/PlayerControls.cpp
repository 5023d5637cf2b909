#include "desktop/windows/PlayerControls.hpp"

#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/SymbolButton.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QAudio>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

namespace brindle::desktop {

namespace {

constexpr int positionWidth = 200; // points
constexpr int volumeWidth = 80;    // points
constexpr int wholeVolume = 100;
constexpr qint64 second = 1000; // milliseconds

/// "4:05", "1:04:05".
QString timeText(qint64 milliseconds) {
    constexpr qint64 minute = 60;
    const qint64 seconds = milliseconds / second;
    const qint64 minutes = seconds / minute;
    const auto twoDigits = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    const QString hours =
        minutes < minute ? QString::number(minutes) : QString::number(minutes / minute) + QLatin1Char(':') + twoDigits(minutes % minute);
    return hours + QLatin1Char(':') + twoDigits(seconds % minute);
}

QSlider* makeSlider(const std::string& name, int width, QWidget* parent) {
    auto* const slider = new QSlider(Qt::Horizontal, parent);
    slider->setMinimumWidth(width);
    slider->setAccessibleName(toQString(name));
    slider->setToolTip(toQString(name));
    return slider;
}

} // namespace

PlayerControls::PlayerControls(QWidget* parent)
    : QWidget(parent), _playButton(new SymbolButton("play", localized("Play"), this)),
      _position(makeSlider(localized("Position"), positionWidth, this)), _time(new QLabel(this)),
      _muteButton(new SymbolButton("volume", localized("Mute"), this)), _volume(makeSlider(localized("Volume"), volumeWidth, this)) {
    constexpr int seconds = 10;
    _position->setSingleStep(seconds);
    _position->setPageStep(seconds * 6);
    _volume->setRange(0, wholeVolume);
    _volume->setValue(wholeVolume);
    _volume->setMaximumWidth(volumeWidth);
    _time->setMinimumWidth(_time->fontMetrics().horizontalAdvance(QStringLiteral("00:00 / 00:00")));
    _time->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* const row = new QHBoxLayout(this);
    row->addWidget(_playButton);
    row->addWidget(_position, 1);
    row->addWidget(_time);
    row->addWidget(_muteButton);
    row->addWidget(_volume);
    connect(_playButton, &SymbolButton::clicked, this, &PlayerControls::togglePlayback);
    _muteButton->setCheckable(true);
    connect(_muteButton, &SymbolButton::toggled, this, &PlayerControls::applyVolume);
    connect(_volume, &QSlider::valueChanged, this, &PlayerControls::applyVolume);
    connect(_position, &QSlider::valueChanged, this, [this](int value) {
        if (_player)
            _player->media().setPosition(value * second);
    });
    setFocusProxy(_playButton);
    setPlayer(nullptr);
}

void PlayerControls::setPlayer(QtPlayer* player) {
    if (_player)
        _player->media().disconnect(this);
    _player = player;
    if (player)
        follow(*player);
    showPlayback();
    showPosition();
}

void PlayerControls::follow(QtPlayer& player) {
    QMediaPlayer& media = player.media();
    connect(&media, &QMediaPlayer::playbackStateChanged, this, &PlayerControls::showPlayback);
    connect(&media, &QMediaPlayer::mediaStatusChanged, this, &PlayerControls::showPlayback);
    connect(&media, &QMediaPlayer::positionChanged, this, &PlayerControls::showPosition);
    connect(&media, &QMediaPlayer::durationChanged, this, &PlayerControls::showPosition);
    connect(&media, &QMediaPlayer::seekableChanged, this, &PlayerControls::showPosition);
    applyVolume();
}

void PlayerControls::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_MediaTogglePlayPause)
        return togglePlayback();
    QWidget::keyPressEvent(event);
}

void PlayerControls::togglePlayback() {
    if (!_player || _player->status() != Player::Status::readyToPlay)
        return;
    if (_player->media().playbackState() == QMediaPlayer::PlayingState)
        _player->media().pause();
    else
        _player->media().play();
}

void PlayerControls::showPlayback() {
    const bool isPlaying = _player && _player->media().playbackState() == QMediaPlayer::PlayingState;
    _playButton->setSymbol(isPlaying ? "pause" : "play", localized(isPlaying ? "Pause" : "Play"));
    _playButton->setEnabled(_player && _player->status() == Player::Status::readyToPlay);
}

void PlayerControls::showPosition() {
    const qint64 duration = _player ? _player->media().duration() : 0;
    const qint64 position = _player ? _player->media().position() : 0;
    const QSignalBlocker blocker(_position);
    _position->setEnabled(_player && duration > 0 && _player->media().isSeekable());
    _position->setRange(0, static_cast<int>(duration / second));
    if (!_position->isSliderDown())
        _position->setValue(static_cast<int>(position / second));
    // A live stream has no end.
    _time->setText(duration > 0 ? timeText(position) + QStringLiteral(" / ") + timeText(duration) : timeText(position));
}

void PlayerControls::applyVolume() {
    if (!_player)
        return;
    _player->audio().setMuted(_muteButton->isChecked());
    const float shown = static_cast<float>(_volume->value()) / wholeVolume;
    _player->audio().setVolume(QAudio::convertVolume(shown, QAudio::LogarithmicVolumeScale, QAudio::LinearVolumeScale));
}

} // namespace brindle::desktop
