#pragma once

#include "desktop/web/EnginePage.hpp"

#include <QWebEngineView>

namespace brindle::desktop {

/// Shows a page, tells it of what a person does, and offers what an article is read with: nothing that would load or save. Thread: main.
class EngineView : public QWebEngineView {
    Q_OBJECT

public:
    explicit EngineView(QWidget* parent) : QWebEngineView(parent), _page(new EnginePage(this)) { setPage(_page); }

    EnginePage& enginePage() const { return *_page; }

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    EnginePage* const _page; ///< a child
};

} // namespace brindle::desktop
