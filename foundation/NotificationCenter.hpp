#pragma once

#include <any>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// A named notice. `object` identifies its sender and is compared by address only.
struct Notification {
    /// Values under text keys; the poster's documentation names each key and its type.
    using UserInfo = std::map<std::string, std::any, std::less<>>;

    std::string_view name;
    const void* object = nullptr;
    UserInfo userInfo = {};

    /// The value under `key`; absent where there is none of that type.
    template <typename T>
    std::optional<T> value(std::string_view key) const {
        const auto field = userInfo.find(key);
        const T* const found = field == userInfo.end() ? nullptr : std::any_cast<T>(&field->second);
        return found ? std::optional<T>(*found) : std::nullopt;
    }
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

    void post(std::string_view name, const void* object = nullptr, Notification::UserInfo userInfo = {});

private:
    struct State;
    std::shared_ptr<State> _state;
};

} // namespace brindle
