#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace brindle::desktop {

/// What keys do in a list: those that a list itself gives no meaning. Belongs to the list, and takes the keys before it. Thread: main.
class ListKeys : public QObject {
public:
    struct Handlers {
        std::function<void()> space;
        std::function<void()> shiftSpace;
        std::function<void()> deleteKey; ///< may be empty, as the next
        std::function<void()> returnKey;
    };

    ListKeys(QWidget* list, Handlers handlers);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    const std::function<void()>* handler(int key, Qt::KeyboardModifiers modifiers) const;

    const Handlers _handlers;
};

} // namespace brindle::desktop
