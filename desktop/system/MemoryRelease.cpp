#include "desktop/system/MemoryRelease.hpp"

#include "Brindle/events/UISyncDispatcher.hpp"

#include <malloc.h>

namespace brindle::desktop {

namespace {

/// Most documents are larger: each gets pages of its own, and no hole stays where it was.
constexpr int largePiece = 64 * 1024; // bytes

} // namespace

MemoryRelease::MemoryRelease() {
    ::mallopt(M_MMAP_THRESHOLD, largePiece);
    _timer.setSingleShot(true);
    _timer.setInterval(quietTime);
    connect(&_timer, &QTimer::timeout, this, [] { ::malloc_trim(0); });
    _observer = NotificationCenter::defaultCenter().addObserver(
        UISyncDispatcher::didReceiveNewArticlesNotification, nullptr, [this](const Notification&) { _timer.start(); });
}

} // namespace brindle::desktop
