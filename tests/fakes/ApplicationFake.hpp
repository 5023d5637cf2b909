#pragma once

#include "platform/Application.hpp"

#include <functional>
#include <string>
#include <vector>

namespace brindle {

/// Logs each call by its name.
class ApplicationFake : public Application {
public:
    void setActivationPolicy(ActivationPolicy policy) override {
        log.push_back("setActivationPolicy " + std::to_string(static_cast<int>(policy)));
    }
    void activate() override { log.emplace_back("activate"); }
    void terminate() override {
        log.emplace_back("terminate");
        if (onTerminate)
            onTerminate();
    }
    void orderFrontStandardAboutPanel() override { log.emplace_back("orderFrontStandardAboutPanel"); }
    bool isShiftKeyDown() const override { return shiftKeyIsDown; }

    std::vector<std::string> log;
    std::function<void()> onTerminate; ///< may be empty
    bool shiftKeyIsDown = false;
};

} // namespace brindle
