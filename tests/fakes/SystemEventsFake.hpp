#pragma once

#include "platform/SystemEvents.hpp"
#include "tests/fakes/CallLog.hpp"

#include <functional>

namespace brindle {

/// Logs who comes and goes, by the events' numbers, and keeps the last observer for a test to tell.
class SystemEventsFake : public SystemEvents {
public:
    explicit SystemEventsFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void addObserver(Event event, std::weak_ptr<SystemEventsObserver> newObserver) override {
        if (onFirstObserver && observer.expired())
            onFirstObserver();
        log->push_back("addObserver " + std::to_string(static_cast<int>(event)));
        observer = std::move(newObserver);
    }
    void removeObserver(Event event) override { log->push_back("removeObserver " + std::to_string(static_cast<int>(event))); }
    void setURLEventHandler(std::weak_ptr<SystemEventsObserver> newHandler) override {
        log->emplace_back("setURLEventHandler");
        handler = std::move(newHandler);
    }
    void removeURLEventHandler() override { log->emplace_back("removeURLEventHandler"); }

    CallLog log;
    std::function<void()> onFirstObserver; ///< for a look at how things are then
    std::weak_ptr<SystemEventsObserver> observer;
    std::weak_ptr<SystemEventsObserver> handler;
};

} // namespace brindle
