#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace brindle {

/// A named notice. `object` identifies its sender and is compared by address only.
struct Notification {
    std::string_view name;
    const void* object = nullptr;
};

/// Delivers notices to observers on the poster's thread, in the order of their registration. Thread: any; an observer that is removed by
/// another thread while a notice is under way may still get it.
class NotificationCenter {
public:
    using Observer = std::function<void(const Notification&)>;

    /// Removes its observer when destroyed.
    class Token {
    public:
        Token() = default;
        Token(Token&&) noexcept = default;
        Token& operator=(Token&& other) noexcept;
        ~Token();

    private:
        friend class NotificationCenter;
        struct Entry;
        explicit Token(std::shared_ptr<Entry> entry) : _entry(std::move(entry)) {}

        std::shared_ptr<Entry> _entry;
    };

    static NotificationCenter& defaultCenter();

    NotificationCenter();
    ~NotificationCenter();

    /// Calls `observer` for each notice of that name, of that object only where one is given.
    [[nodiscard]] Token addObserver(std::string_view name, const void* object, Observer observer);

    void post(std::string_view name, const void* object = nullptr);

private:
    struct State;
    std::shared_ptr<State> _state;
};

} // namespace brindle
