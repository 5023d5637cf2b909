#include "desktop/windows/FailedPlayer.hpp"

namespace brindle::desktop {

void FailedPlayer::replaceCurrentItem(const URL&) {
    // Whoever gives it an item can't listen before that.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (const auto observer = _observer.lock())
                observer->playerStatusDidChange();
        },
        Qt::QueuedConnection);
}

} // namespace brindle::desktop
