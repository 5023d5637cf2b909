#pragma once

#include "platform/LaunchServices.hpp"
#include "tests/fakes/CallLog.hpp"

#include <map>

namespace brindle {

/// Keeps the handlers that it is given, and logs each change.
class LaunchServicesFake : public LaunchServices {
public:
    explicit LaunchServicesFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    std::optional<std::string> defaultHandler(std::string_view scheme) const override {
        const auto found = handlers.find(scheme);
        return found == handlers.end() ? std::nullopt : std::optional(found->second);
    }
    void setDefaultHandler(std::string_view scheme, const std::string& bundleIdentifier) override {
        log->push_back("setDefaultHandler " + std::string(scheme) + " " + bundleIdentifier);
        handlers.insert_or_assign(std::string(scheme), bundleIdentifier);
    }

    CallLog log;
    std::map<std::string, std::string, std::less<>> handlers; ///< by scheme
};

} // namespace brindle
