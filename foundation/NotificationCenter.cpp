#include "foundation/NotificationCenter.hpp"

#include <algorithm>
#include <cstdint>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

namespace brindle {

struct NotificationCenter::Token::Entry {
    std::weak_ptr<State> center;
    std::string name;
    const void* object = nullptr;
    std::uint64_t number = 0; ///< in the order of registration
    Observer observer;
};

struct NotificationCenter::State {
    using Key = std::pair<std::string, const void*>;

    std::mutex mutex;
    std::uint64_t lastNumber = 0;
    std::multimap<Key, std::shared_ptr<Token::Entry>> entries;

    void remove(const std::shared_ptr<Token::Entry>& entry) {
        const std::lock_guard lock(mutex);
        const auto [begin, end] = entries.equal_range({entry->name, entry->object});
        const auto found = std::find_if(begin, end, [&](const auto& pair) { return pair.second == entry; });
        if (found != end)
            entries.erase(found);
    }
};

NotificationCenter::Token& NotificationCenter::Token::operator=(Token&& other) noexcept {
    std::swap(_entry, other._entry);
    return *this;
}

NotificationCenter::Token::~Token() {
    if (!_entry)
        return;
    if (const auto center = _entry->center.lock())
        center->remove(_entry);
}

NotificationCenter& NotificationCenter::defaultCenter() {
    // Never destroyed: observers may end later than statics.
    static NotificationCenter& center = *new NotificationCenter;
    return center;
}

NotificationCenter::NotificationCenter() : _state(std::make_shared<State>()) {}
NotificationCenter::~NotificationCenter() = default;

NotificationCenter::Token NotificationCenter::addObserver(std::string_view name, const void* object, Observer observer) {
    auto entry = std::make_shared<Token::Entry>();
    entry->center = _state;
    entry->name = name;
    entry->object = object;
    entry->observer = std::move(observer);
    const std::lock_guard lock(_state->mutex);
    entry->number = ++_state->lastNumber;
    _state->entries.emplace(State::Key{entry->name, object}, entry);
    return Token(entry);
}

void NotificationCenter::post(std::string_view name, const void* object, Notification::UserInfo userInfo) {
    std::vector<std::shared_ptr<Token::Entry>> receivers;
    {
        const std::lock_guard lock(_state->mutex);
        const auto collect = [&](const void* of) {
            const auto [begin, end] = _state->entries.equal_range({std::string(name), of});
            for (auto i = begin; i != end; ++i)
                receivers.push_back(i->second);
        };
        collect(object);
        if (object)
            collect(nullptr);
    }
    std::sort(receivers.begin(), receivers.end(), [](const auto& a, const auto& b) { return a->number < b->number; });
    const Notification notification = {name, object, std::move(userInfo)};
    for (const auto& receiver : receivers)
        receiver->observer(notification);
}

} // namespace brindle
