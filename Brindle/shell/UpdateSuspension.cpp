#include "Brindle/shell/UpdateSuspension.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "foundation/RunLoop.hpp"

namespace brindle {

void UpdateSuspension::suspendFeedUpdates() {
    assertMainThread();
    // Kept as is: a session that ends while the machine falls asleep stores that updating is off, which then stays off.
    _defaults->set(preference::savedFeedsUpdateState, _feedsManager->allowUpdates);
    _feedsManager->allowUpdates = false;
    _feedsManager->applyUpdateState(_feedsManager->feeds);
}

void UpdateSuspension::scheduleFeedUpdateResume() {
    assertMainThread();
    if (!_defaults->boolForKey(preference::savedFeedsUpdateState))
        return;
    std::erase_if(_timers, [](const std::shared_ptr<Timer>& timer) { return !timer->isValid(); });
    _timers.push_back(Timer::scheduledTimer(resumeDelay, false, [suspension = weak_from_this()](Timer&) {
        if (const auto self = suspension.lock())
            self->delayedStartFeedUpdates();
    }));
}

void UpdateSuspension::delayedStartFeedUpdates() {
    // Kept as is: this undoes also a pause that the user made within the delay.
    _feedsManager->allowUpdates = _defaults->boolForKey(preference::savedFeedsUpdateState);
    _feedsManager->applyUpdateState(_feedsManager->feeds);
}

} // namespace brindle
