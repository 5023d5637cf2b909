#pragma once

#include "foundation/NotificationCenter.hpp"

#include <QObject>
#include <QTimer>
#include <chrono>

namespace brindle::desktop {

/// Gives memory back to the system that the program has freed: large pieces at once, the holes that a run of updates leaves once it is
/// over. One for a process, made before other threads run. Thread: main.
class MemoryRelease : public QObject {
public:
    /// How long nothing must have been updated.
    static constexpr std::chrono::milliseconds quietTime{3000};

    MemoryRelease();

private:
    QTimer _timer;
    NotificationCenter::Token _observer;
};

} // namespace brindle::desktop
