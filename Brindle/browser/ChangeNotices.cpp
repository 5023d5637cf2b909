#include "Brindle/browser/ChangeNotices.hpp"

namespace brindle::notices {

namespace {

constexpr std::string_view objectKey = "object";

} // namespace

void post(std::string_view name, const std::shared_ptr<Object>& object) {
    NotificationCenter::defaultCenter().post(name, object.get(), {{std::string(objectKey), object}});
}

std::shared_ptr<Object> subject(const Notification& notification) {
    return notification.value<std::shared_ptr<Object>>(objectKey).value_or(nullptr);
}

} // namespace brindle::notices
