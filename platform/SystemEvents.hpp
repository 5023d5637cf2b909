#pragma once

#include <memory>
#include <optional>
#include <string>

namespace brindle {

/// Is told what happens to the machine and to the person's session, and what other programs ask to be opened. Thread: main.
class SystemEventsObserver {
public:
    virtual ~SystemEventsObserver() = default;
    virtual void machineDidWake() = 0;
    virtual void machineWillSleep() = 0;
    virtual void machineResignedSession() = 0;
    virtual void machineActivatedSession() = 0;
    /// Another program asks that an address be opened. Absent where its request holds none.
    virtual void handleAppleEvent(const std::optional<std::string>& address) = 0;
};

/// Where the desktop tells of those. Thread: main.
class SystemEvents {
public:
    enum class Event { didWake, willSleep, sessionDidResignActive, sessionDidBecomeActive };

    virtual ~SystemEvents() = default;
    /// Held weakly.
    virtual void addObserver(Event event, std::weak_ptr<SystemEventsObserver> observer) = 0;
    virtual void removeObserver(Event event) = 0;
    /// Who gets the addresses that other programs ask to be opened; held weakly.
    virtual void setURLEventHandler(std::weak_ptr<SystemEventsObserver> handler) = 0;
    virtual void removeURLEventHandler() = 0;
};

} // namespace brindle
