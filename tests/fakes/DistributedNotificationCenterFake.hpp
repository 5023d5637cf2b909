#pragma once

#include "platform/DistributedNotificationCenter.hpp"
#include "tests/fakes/CallLog.hpp"

namespace brindle {

/// Logs the notices with their objects.
class DistributedNotificationCenterFake : public DistributedNotificationCenter {
public:
    explicit DistributedNotificationCenterFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void post(std::string_view name, const std::optional<std::string>& object) override {
        log->push_back("post " + std::string(name) + " " + object.value_or("-"));
    }

    CallLog log;
};

} // namespace brindle
