#pragma once

#include "platform/Player.hpp"

#include <QObject>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace brindle::desktop {

/// Stands where there is nothing to play with: fails at whatever it is given. Thread: main.
class FailedPlayer : public QObject, public Player {
    Q_OBJECT

public:
    /// `error` is for people.
    explicit FailedPlayer(std::string error) : _error(std::move(error)) {}

    void setObserver(std::weak_ptr<PlayerObserver> observer) override { _observer = std::move(observer); }
    void replaceCurrentItem(const URL& url) override;
    Status status() const override { return Status::failed; }
    std::optional<std::string> errorDescription() const override { return _error; }
    void play() override {}
    void setRate(double) override {}

private:
    const std::string _error;
    std::weak_ptr<PlayerObserver> _observer;
};

} // namespace brindle::desktop
