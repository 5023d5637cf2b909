#pragma once

#include "platform/Window.hpp"
#include "tests/fakes/CallLog.hpp"

#include <cmath>
#include <string>

namespace brindle {

/// Logs each call that changes it.
class WindowFake : public Window {
public:
    explicit WindowFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void setDelegate(std::weak_ptr<WindowDelegate> newDelegate) override {
        log->emplace_back("setDelegate");
        delegate = std::move(newDelegate);
    }
    void setTitle(const std::string& title) override { log->push_back("setTitle " + title); }
    void setLevel(Level level) override { log->push_back("setLevel " + std::to_string(static_cast<int>(level))); }
    void setStyleMask(unsigned mask) override { log->push_back("setStyleMask " + std::to_string(mask)); }
    void setFrameAutosaveName(std::string_view name) override { log->push_back("setFrameAutosaveName " + std::string(name)); }
    void setFrameUsingName(std::string_view name) override { log->push_back("setFrameUsingName " + std::string(name)); }
    void setContentSize(Size size) override {
        log->push_back("setContentSize " + std::to_string(std::lround(size.width)) + "x" + std::to_string(std::lround(size.height)));
    }
    void makeFirstResponder(const Control& control) override { firstResponder = &control; }
    void show() override {
        log->emplace_back("showWindow");
        visible = true;
    }
    void close() override {
        if (!visible)
            return;
        if (const auto told = delegate.lock())
            told->windowWillClose();
        log->emplace_back("closeWindow");
        visible = false;
    }
    bool isVisible() const override { return visible; }

    CallLog log;
    std::weak_ptr<WindowDelegate> delegate;
    bool visible = false;
    const Control* firstResponder = nullptr; ///< compared by address only
};

} // namespace brindle
