#pragma once

namespace brindle {

/// What a program asks of the desktop about itself. Thread: main.
class Application {
public:
    /// Whether it is listed among the running programs and has an icon there.
    enum class ActivationPolicy { regular = 0, accessory };

    virtual ~Application() = default;
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;
    /// Brings it to the front, whichever program is there.
    virtual void activate() = 0;
    /// Ends it in good order.
    virtual void terminate() = 0;
    virtual void orderFrontStandardAboutPanel() = 0;
    /// Whether the Shift key is down in the event that is being handled; false where none is.
    virtual bool isShiftKeyDown() const = 0;
};

} // namespace brindle
