#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <functional>

namespace brindle::desktop {

/// Runs the toolkit's event loop until `condition` holds; false when it never does. The limit is there for a test that fails, not for one
/// that passes.
inline bool runEventLoop(const std::function<bool()>& condition) {
    constexpr int limit = 60000; // milliseconds
    constexpr int step = 10;
    const QDeadlineTimer deadline(limit);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, step);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (!condition())
            QThread::msleep(1);
    }
    return true;
}

} // namespace brindle::desktop
