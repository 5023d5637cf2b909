#include "desktop/toolkit/RunLoopBridge.hpp"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <chrono>

namespace brindle::desktop {

namespace {

const QEvent::Type wakeEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

/// The toolkit's timers count milliseconds in an int.
constexpr std::chrono::milliseconds longestWait = std::chrono::hours(24);

} // namespace

RunLoopBridge::RunLoopBridge() {
    _timer.setSingleShot(true);
    _timer.setTimerType(Qt::PreciseTimer);
    connect(&_timer, &QTimer::timeout, this, [this] {
        _deadline = RunLoop::Time::max();
        runPending();
    });
    // Timers come and go without a word, but always on this thread: a look before each sleep sees all of them.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] { followDeadline(); });
    RunLoop::main().setWakeHandler([this] { QCoreApplication::postEvent(this, new QEvent(wakeEvent)); });
    QCoreApplication::postEvent(this, new QEvent(wakeEvent));
}

RunLoopBridge::~RunLoopBridge() {
    RunLoop::main().setWakeHandler({});
}

bool RunLoopBridge::event(QEvent* event) {
    if (event->type() != wakeEvent)
        return QObject::event(event);
    runPending();
    return true;
}

void RunLoopBridge::runPending() {
    RunLoop::main().runPending();
    followDeadline();
}

void RunLoopBridge::followDeadline() {
    const RunLoop::Time next = RunLoop::main().nextDeadline();
    if (next == _deadline)
        return;
    _deadline = next;
    if (next == RunLoop::Time::max())
        return _timer.stop();
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(next - RunLoop::Time::clock::now());
    _timer.start(std::clamp(wait, std::chrono::milliseconds(0), longestWait));
}

} // namespace brindle::desktop
