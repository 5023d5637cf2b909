#include "desktop/windows/BrowserToolbar.hpp"

#include "desktop/toolkit/Binders.hpp"
#include "desktop/toolkit/ControlBinding.hpp"
#include "desktop/toolkit/Images.hpp"
#include "desktop/toolkit/MenuView.hpp"
#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/SymbolButton.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>

namespace brindle::desktop {

namespace {

// In points.
constexpr int margin = 6;
constexpr int searchWidth = 260;

} // namespace

BrowserToolbar::BrowserToolbar(FeedsBrowserWindowController& controller, const std::shared_ptr<StatusMenu>& statusMenu,
    const std::shared_ptr<ResponderChain>& chain, QWidget* parent)
    : QWidget(parent), _controller(controller) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin / 2);
    addStatusMenu(*row, statusMenu, chain);
    auto* const add = new SymbolButton("add", localized("Add"), this);
    auto* const remove = new SymbolButton("remove", localized("Remove Feed"), this);
    row->addWidget(add);
    row->addWidget(remove);
    row->addStretch(1);
    addSearchField(*row);
    bind(controller.feedPopUpButton, add, [&controller] { controller.feedPopUpChanged(); });
    bind(*controller.removeFeedToolbarItem, remove, [&controller] { controller.removeSelectedFeed(); });
}

void BrowserToolbar::addStatusMenu(
    QHBoxLayout& row, const std::shared_ptr<StatusMenu>& statusMenu, const std::shared_ptr<ResponderChain>& chain) {
    auto* const button = new SymbolButton("menu", localized("Menu"), this);
    button->setPopupMode(QToolButton::InstantPopup);
    row.addWidget(button);
    new ControlBinding(*statusMenu, button, [button, chain, statusMenu] {
        const auto* const shown = static_cast<const MenuView*>(button->menu());
        if (!statusMenu->menu() || (shown && shown->menu() == statusMenu->menu()))
            return;
        if (button->menu())
            button->menu()->deleteLater();
        button->setMenu(new MenuView(statusMenu->menu(), chain, button));
    });
}

void BrowserToolbar::addSearchField(QHBoxLayout& row) {
    const QString name = toQString(localized("Search"));
    _search = new QLineEdit(this);
    _search->setPlaceholderText(name);
    _search->setAccessibleName(name);
    _search->setClearButtonEnabled(true);
    _search->setMaximumWidth(searchWidth);
    _search->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    _search->addAction(images::icon(Image::named("search")), QLineEdit::LeadingPosition);
    _search->installEventFilter(this);
    row.addWidget(_search, 2);
    bind(_controller.searchField, _search, [this] { _controller.controlTextDidChange(); });
}

bool BrowserToolbar::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        _controller.searchFieldDidStartSearching();
    return QWidget::eventFilter(object, event);
}

void BrowserToolbar::startSearch() {
    _search->setFocus(Qt::ShortcutFocusReason);
    _search->selectAll();
}

void BrowserToolbar::endSearch() {
    if (_search->text().isEmpty())
        return;
    _search->clear();
    emit _search->textEdited({}); // as when a person empties it
}

} // namespace brindle::desktop
