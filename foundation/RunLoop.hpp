#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace brindle {

class Timer;

/// Where a run loop's timers take their time from. Monotonic; only differences count. Asked from the loop's own thread.
class TimeSource {
public:
    using Time = std::chrono::steady_clock::time_point;

    virtual ~TimeSource() = default;
    virtual Time now() const = 0;
};

/// The main thread's loop: blocks posted from any thread, and timers. A program that has an event loop of its own instead installs a wake
/// handler, and calls `runPending` when woken and when `nextDeadline` is due. Thread: main, but for `perform`, `wakeUp` and `stop`.
class RunLoop {
public:
    using Block = std::function<void()>;
    using Time = TimeSource::Time;

    /// The process's one loop; it belongs to the thread that `main` runs on. Thread: any.
    static RunLoop& main();

    ~RunLoop();
    RunLoop(const RunLoop&) = delete;
    RunLoop& operator=(const RunLoop&) = delete;

    /// Runs `block` on the loop, after all that were posted before. Thread: any.
    void perform(Block block);

    /// Runs what has been posted and the timers that are due, once, without waiting; true when anything ran.
    bool runPending();

    /// Runs until `stop`, sleeping while there is nothing to do.
    void run();

    /// Runs until `condition` holds, which is looked at after each round; false when `limit` of real time passed first.
    bool runUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit);

    /// Ends `run` after the present round. Thread: any.
    void stop();

    /// The time of the earliest timer; `Time::max()` when there is none.
    Time nextDeadline() const;

    /// Called from any thread when blocks were posted and none was waiting, for a program that has an event loop of its own. Set before
    /// other threads run.
    void setWakeHandler(std::function<void()> handler);

    /// Replaces the time that timers go by; null for the system's steady clock.
    void setTimeSource(std::shared_ptr<const TimeSource> source);

    /// Whether the calling thread is the loop's.
    bool isCurrent() const;

private:
    friend class Timer;
    struct State;

    RunLoop();
    Time now() const;
    void add(Timer& timer);
    void remove(Timer& timer);
    void waitForWork(Time limit);
    bool fireTimers();

    std::unique_ptr<State> _state;
};

/// Ends the process when called off the main thread: main-thread classes call it at their doors, in debug builds.
void assertMainThread();

} // namespace brindle
