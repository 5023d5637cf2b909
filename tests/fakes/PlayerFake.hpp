#pragma once

#include "platform/Player.hpp"
#include "tests/fakes/CallLog.hpp"

#include <string>

namespace brindle {

/// Logs each call that changes it, and is as far as a test has it.
class PlayerFake : public Player {
public:
    explicit PlayerFake(CallLog callLog) : log(std::move(callLog)) {}

    void setObserver(std::weak_ptr<PlayerObserver> newObserver) override {
        observer = std::move(newObserver);
        log->emplace_back(observer.expired() ? "setObserver none" : "setObserver");
    }
    void replaceCurrentItem(const URL& url) override { log->push_back("replaceCurrentItem " + url.absoluteString()); }
    Status status() const override { return currentStatus; }
    std::optional<std::string> errorDescription() const override { return error; }
    void play() override { log->emplace_back("play"); }
    void setRate(double rate) override { log->push_back("setRate " + std::to_string(static_cast<int>(rate))); }

    /// Becomes so and tells it.
    void become(Status newStatus) {
        currentStatus = newStatus;
        if (const auto receiver = observer.lock())
            receiver->playerStatusDidChange();
    }

    CallLog log;
    std::weak_ptr<PlayerObserver> observer;
    Status currentStatus = Status::unknown;
    std::optional<std::string> error;
};

/// Logs the players that are made, and what is set.
class PlayerViewFake : public PlayerView {
public:
    explicit PlayerViewFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    std::shared_ptr<Player> makePlayer(const URL& url) override {
        log->push_back("makePlayer " + url.absoluteString());
        made = std::make_shared<PlayerFake>(log);
        made->currentStatus = statusOfNext;
        return made;
    }
    std::shared_ptr<Player> player() const override { return current; }
    void setPlayer(std::shared_ptr<Player> player) override {
        log->emplace_back(player ? "setPlayer" : "setPlayer none");
        current = std::move(player);
    }

    CallLog log;
    Player::Status statusOfNext = Player::Status::unknown; ///< which a new player has at once
    std::shared_ptr<PlayerFake> made;                      ///< the last
    std::shared_ptr<Player> current;
};

} // namespace brindle
