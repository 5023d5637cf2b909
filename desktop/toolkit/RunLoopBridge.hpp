#pragma once

#include "foundation/RunLoop.hpp"

#include <QObject>
#include <QTimer>

namespace brindle::desktop {

/// Runs the program's main run loop inside the toolkit's event loop: blocks as soon as they are posted, timers when they are due. While
/// there is nothing to do nothing wakes up. One for a process, made on the main thread after the application object, and before other
/// threads run. Thread: main.
class RunLoopBridge : public QObject {
public:
    RunLoopBridge();
    ~RunLoopBridge() override;

protected:
    bool event(QEvent* event) override;

private:
    void runPending();
    void followDeadline();

    QTimer _timer;
    RunLoop::Time _deadline = RunLoop::Time::max(); ///< what the timer is set for
};

} // namespace brindle::desktop
