#pragma once

#include <functional>
#include <utility>

namespace brindle {

/// What greets a person at the first launch. Thread: main.
class SplashWindow {
public:
    virtual ~SplashWindow() = default;

    std::function<void()> onDismiss; ///< called once, when the person has dismissed the window; may be empty

    virtual void show() = 0;
    virtual void close() = 0;

    /// The person dismisses it.
    void handleClick() {
        close();
        if (const auto dismissed = std::exchange(onDismiss, {}))
            dismissed();
    }
};

} // namespace brindle
