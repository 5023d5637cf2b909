#include "Brindle/browser/MediaPlayerViewController.hpp"

#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <string>

namespace brindle {

MediaPlayerViewController::~MediaPlayerViewController() {
    stopPlayer();
}

void MediaPlayerViewController::playURL(const URL& url) {
    assertMainThread();
    const auto view = playerView.lock();
    if (!view)
        return;
    _hasToldFailure = false;
    if (const auto player = view->player()) {
        player->replaceCurrentItem(url);
        player->setObserver(weak_from_this());
        return;
    }
    const auto player = view->makePlayer(url);
    view->setPlayer(player);
    player->setObserver(weak_from_this());
    // It may have failed, or be ready, before anybody could hear of it.
    playerStatusDidChange();
}

void MediaPlayerViewController::stopPlayer() {
    const auto view = playerView.lock();
    const auto player = view ? view->player() : nullptr;
    if (!player)
        return;
    player->setObserver({});
    player->setRate(0);
    view->setPlayer(nullptr);
}

void MediaPlayerViewController::playerStatusDidChange() {
    const auto view = playerView.lock();
    const auto player = view ? view->player() : nullptr;
    if (!player)
        return;
    if (player->status() == Player::Status::readyToPlay)
        player->play();
    else if (player->status() == Player::Status::failed && !_hasToldFailure)
        showFailure(*player);
}

void MediaPlayerViewController::showFailure(const Player& player) {
    _hasToldFailure = true;
    _alerts->runModal({localized("Loading failed!"), localized("The current media could not be loaded because of an error: ") +
                                                         player.errorDescription().value_or(std::string())},
        {});
}

} // namespace brindle
