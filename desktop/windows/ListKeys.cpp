#include "desktop/windows/ListKeys.hpp"

#include <QKeyEvent>
#include <QWidget>
#include <utility>

namespace brindle::desktop {

ListKeys::ListKeys(QWidget* list, Handlers handlers) : QObject(list), _handlers(std::move(handlers)) {
    list->installEventFilter(this);
}

const std::function<void()>* ListKeys::handler(int key, Qt::KeyboardModifiers modifiers) const {
    if (key == Qt::Key_Space && modifiers == Qt::ShiftModifier)
        return &_handlers.shiftSpace;
    if ((modifiers & ~Qt::KeypadModifier) != Qt::NoModifier)
        return nullptr;
    switch (key) {
    case Qt::Key_Space:
        return &_handlers.space;
    case Qt::Key_Delete:
        return &_handlers.deleteKey;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return &_handlers.returnKey;
    default:
        return nullptr;
    }
}

bool ListKeys::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(object, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    const auto* const handler = this->handler(key->key(), key->modifiers());
    if (!handler || !*handler)
        return false;
    // A key that is held down goes through no articles that nobody reads.
    if (!key->isAutoRepeat() || key->key() != Qt::Key_Space)
        (*handler)();
    return true;
}

} // namespace brindle::desktop
