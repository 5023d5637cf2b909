#pragma once

#include "foundation/Object.hpp"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace brindle {

/// A control as its controller has it: a model that a toolkit shows, and that tells of its changes. Thread: main.
class Control : public Object {
public:
    using Observer = std::function<void()>;
    using Token = std::shared_ptr<const Observer>;

    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Calls `observer` after every change for as long as the token lives.
    [[nodiscard]] Token observe(Observer observer);

    virtual bool isEnabled() const { return _isEnabled; }
    void setEnabled(bool isEnabled) { set(_isEnabled, isEnabled); }

    bool isHidden() const { return _isHidden; }
    void setHidden(bool isHidden) { set(_isHidden, isHidden); }

protected:
    /// Gives a field its value, and tells the observers where it had another.
    template <typename T>
    void set(T& field, T value) {
        if (field == value)
            return;
        field = std::move(value);
        tell();
    }

    void tell();

private:
    std::vector<std::weak_ptr<const Observer>> _observers;
    bool _isEnabled = true;
    bool _isHidden = false;
};

} // namespace brindle
