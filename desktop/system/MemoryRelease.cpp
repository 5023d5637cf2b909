#include "desktop/system/MemoryRelease.hpp"

#include "Brindle/events/UISyncDispatcher.hpp"

#include <malloc.h>

namespace brindle::desktop {

namespace {

// In bytes. What each rebuild of the menu takes and gives back is smaller: to map it anew every time costs more than the rebuild.
constexpr int largePiece = 1024 * 1024;
constexpr int keptAtEnd = 16 * 1024 * 1024; ///< of what was freed, until the run is over

} // namespace

MemoryRelease::MemoryRelease() {
    ::mallopt(M_MMAP_THRESHOLD, largePiece);
    ::mallopt(M_TRIM_THRESHOLD, keptAtEnd);
    _timer.setSingleShot(true);
    _timer.setInterval(quietTime);
    connect(&_timer, &QTimer::timeout, this, [] { ::malloc_trim(0); });
    _observer = NotificationCenter::defaultCenter().addObserver(
        UISyncDispatcher::didReceiveNewArticlesNotification, nullptr, [this](const Notification&) { _timer.start(); });
}

} // namespace brindle::desktop
