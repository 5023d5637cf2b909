#include "desktop/windows/QtPlayer.hpp"

#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QUrl>
#include <QVideoWidget>
#include <utility>

namespace brindle::desktop {

QtPlayer::QtPlayer(const URL& url, QVideoWidget* video) {
    _media.setAudioOutput(&_audio);
    _media.setVideoOutput(video);
    connect(&_media, &QMediaPlayer::mediaStatusChanged, this, &QtPlayer::mediaStatusDidChange);
    connect(&_media, &QMediaPlayer::errorOccurred, this,
        [this](QMediaPlayer::Error, const QString& description) { fail(fromQString(description)); });
    replaceCurrentItem(url);
}

void QtPlayer::replaceCurrentItem(const URL& url) {
    ++_item;
    // The same address is loaded anew only after another one.
    _media.setSource({});
    _status = Status::unknown;
    _error.reset();
    const QUrl address(toQString(url.absoluteString()), QUrl::StrictMode);
    if (address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https"))
        return _media.setSource(address);
    // Whoever makes the player can't listen before it is made.
    QMetaObject::invokeMethod(
        this,
        [this, item = _item] {
            if (item == _item)
                fail(localized("Only what is on the network can be played."));
        },
        Qt::QueuedConnection);
}

void QtPlayer::setRate(double rate) {
    if (rate == 0)
        return _media.stop();
    _media.setPlaybackRate(rate);
    _media.play();
}

void QtPlayer::mediaStatusDidChange(QMediaPlayer::MediaStatus mediaStatus) {
    switch (mediaStatus) {
    case QMediaPlayer::LoadedMedia:
    case QMediaPlayer::BufferedMedia:
        return become(Status::readyToPlay);
    case QMediaPlayer::InvalidMedia:
        return fail(fromQString(_media.errorString()));
    default:
        return;
    }
}

void QtPlayer::fail(std::string error) {
    if (!error.empty())
        _error = std::move(error);
    become(Status::failed);
}

/// A failure is the end of an item: some systems tell that a thing is ready after they failed at it.
void QtPlayer::become(Status status) {
    if (_status == status || _status == Status::failed)
        return;
    _status = status;
    if (const auto observer = _observer.lock())
        observer->playerStatusDidChange();
}

} // namespace brindle::desktop
