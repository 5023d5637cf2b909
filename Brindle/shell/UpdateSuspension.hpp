#pragma once

#include "Brindle/library/FeedsManager.hpp"
#include "foundation/Timer.hpp"
#include "foundation/UserDefaults.hpp"

#include <memory>
#include <utility>
#include <vector>

namespace brindle {

/// Puts all updating to rest while the machine sleeps or another person's session is in front, and brings it back afterwards as it was, so
/// that a library that the user paused stays paused. Thread: main.
class UpdateSuspension : public std::enable_shared_from_this<UpdateSuspension> {
public:
    /// The network needs a moment after the machine woke.
    static constexpr Timer::Interval resumeDelay = Timer::Interval(5.0);

    static std::shared_ptr<UpdateSuspension> make(std::shared_ptr<FeedsManager> feedsManager, std::shared_ptr<UserDefaults> defaults) {
        return std::shared_ptr<UpdateSuspension>(new UpdateSuspension(std::move(feedsManager), std::move(defaults)));
    }

    void suspendFeedUpdates();
    /// After `resumeDelay`; nothing where updating was off before. Kept as is: a second call before that has a delay of its own.
    void scheduleFeedUpdateResume();

private:
    UpdateSuspension(std::shared_ptr<FeedsManager> feedsManager, std::shared_ptr<UserDefaults> defaults)
        : _feedsManager(std::move(feedsManager)), _defaults(std::move(defaults)) {}
    void delayedStartFeedUpdates();

    const std::shared_ptr<FeedsManager> _feedsManager;
    const std::shared_ptr<UserDefaults> _defaults;
    std::vector<std::shared_ptr<Timer>> _timers; ///< those that fired go with the next
};

} // namespace brindle
