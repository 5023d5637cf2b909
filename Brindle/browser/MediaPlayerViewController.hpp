#pragma once

#include "foundation/URL.hpp"
#include "platform/Alert.hpp"
#include "platform/Player.hpp"

#include <memory>
#include <utility>

namespace brindle {

/// Plays what is at an address in a player view. Thread: main.
class MediaPlayerViewController : public PlayerObserver, public std::enable_shared_from_this<MediaPlayerViewController> {
public:
    static std::shared_ptr<MediaPlayerViewController> make(std::shared_ptr<AlertPresenter> alerts) {
        return std::shared_ptr<MediaPlayerViewController>(new MediaPlayerViewController(std::move(alerts)));
    }
    ~MediaPlayerViewController() override;

    std::weak_ptr<PlayerView> playerView;

    /// In place of what is played. A failure is told once.
    void playURL(const URL& url);
    void stopPlayer();

    void playerStatusDidChange() override;

private:
    explicit MediaPlayerViewController(std::shared_ptr<AlertPresenter> alerts) : _alerts(std::move(alerts)) {}
    void showFailure(const Player& player);

    const std::shared_ptr<AlertPresenter> _alerts;
    bool _hasToldFailure = false; ///< of the present address
};

} // namespace brindle
