#pragma once

#include "foundation/URL.hpp"

#include <memory>
#include <optional>
#include <string>

namespace brindle {

/// Is told of a player. Thread: main.
class PlayerObserver {
public:
    virtual ~PlayerObserver() = default;
    /// Also when it is what it was before: some systems report a failure several times.
    virtual void playerStatusDidChange() = 0;
};

/// Plays audio or video from an address. Thread: main.
class Player {
public:
    /// As the platform numbers them.
    enum class Status { unknown = 0, readyToPlay, failed };

    virtual ~Player() = default;
    /// Null: nobody.
    virtual void setObserver(std::weak_ptr<PlayerObserver> observer) = 0;
    virtual void replaceCurrentItem(const URL& url) = 0;
    virtual Status status() const = 0;
    /// What it failed with, for people; absent without an error.
    virtual std::optional<std::string> errorDescription() const = 0;
    virtual void play() = 0;
    /// 0 stops, 1 is ordinary speed.
    virtual void setRate(double rate) = 0;
};

/// Shows what a player plays, with controls. Thread: main.
class PlayerView {
public:
    virtual ~PlayerView() = default;
    /// A player that has begun to load what is at the address.
    virtual std::shared_ptr<Player> makePlayer(const URL& url) = 0;
    /// Null while it has none.
    virtual std::shared_ptr<Player> player() const = 0;
    virtual void setPlayer(std::shared_ptr<Player> player) = 0;
};

} // namespace brindle
