#pragma once

#include "platform/Player.hpp"

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QObject>
#include <memory>
#include <optional>
#include <string>

class QVideoWidget;

namespace brindle::desktop {

/// Plays over http and https; any other address fails. Tells each change of its status once. Thread: main.
class QtPlayer : public QObject, public Player {
    Q_OBJECT

public:
    /// Video is shown in `video`, which may go before this object.
    QtPlayer(const URL& url, QVideoWidget* video);

    QMediaPlayer& media() { return _media; }
    QAudioOutput& audio() { return _audio; }

    void setObserver(std::weak_ptr<PlayerObserver> observer) override { _observer = std::move(observer); }
    void replaceCurrentItem(const URL& url) override;
    Status status() const override { return _status; }
    std::optional<std::string> errorDescription() const override { return _error; }
    void play() override { _media.play(); }
    void setRate(double rate) override;

private:
    void mediaStatusDidChange(QMediaPlayer::MediaStatus mediaStatus);
    void fail(std::string error);
    void become(Status status);

    QAudioOutput _audio;
    QMediaPlayer _media;
    std::weak_ptr<PlayerObserver> _observer;
    Status _status = Status::unknown;
    unsigned _item = 0; ///< the number of the item, for what is told later
    std::optional<std::string> _error;
};

} // namespace brindle::desktop
