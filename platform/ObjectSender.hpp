#pragma once

#include "platform/Action.hpp"

#include <memory>
#include <utility>

namespace brindle {

/// Sends an action about something where no control does.
class ObjectSender : public ActionSender {
public:
    explicit ObjectSender(std::shared_ptr<Object> object) : _object(std::move(object)) {}
    std::shared_ptr<Object> representedObject() const override { return _object; }

private:
    std::shared_ptr<Object> _object;
};

} // namespace brindle
