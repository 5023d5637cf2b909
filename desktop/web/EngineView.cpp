#include "desktop/web/EngineView.hpp"

#include <QChildEvent>
#include <QContextMenuEvent>
#include <QMenu>
#include <QWebEngineContextMenuRequest>

namespace brindle::desktop {

bool EngineView::event(QEvent* event) {
    // What is pressed and typed reaches a child of the engine's own.
    if (event->type() == QEvent::ChildPolished)
        static_cast<QChildEvent*>(event)->child()->installEventFilter(this);
    return QWebEngineView::event(event);
}

bool EngineView::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::TouchEnd:
        _page->noteActivation();
        break;
    default:
        break;
    }
    return QWebEngineView::eventFilter(object, event);
}

void EngineView::contextMenuEvent(QContextMenuEvent* event) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(_page->action(QWebEnginePage::Copy));
    if (lastContextMenuRequest() && !lastContextMenuRequest()->linkUrl().isEmpty())
        menu->addAction(_page->action(QWebEnginePage::CopyLinkToClipboard));
    menu->addAction(_page->action(QWebEnginePage::SelectAll));
    menu->popup(event->globalPos());
}

} // namespace brindle::desktop
