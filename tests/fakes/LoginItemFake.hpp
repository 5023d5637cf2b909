#pragma once

#include "platform/LoginItem.hpp"
#include "tests/fakes/CallLog.hpp"

namespace brindle {

/// Logs each call, and succeeds as a test has it.
class LoginItemFake : public LoginItem {
public:
    explicit LoginItemFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    bool setEnabled(const std::string& bundleIdentifier, bool isEnabled) override {
        log->push_back("setLoginItem " + bundleIdentifier + (isEnabled ? " on" : " off"));
        return succeeds;
    }

    CallLog log;
    bool succeeds = true;
};

} // namespace brindle
