#include "desktop/toolkit/MenuView.hpp"

#include "desktop/toolkit/Images.hpp"
#include "desktop/toolkit/MenuStyle.hpp"
#include "desktop/toolkit/Text.hpp"
#include "desktop/toolkit/ViewAction.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QActionEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QStyleOptionMenuItem>
#include <algorithm>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr int besideTitle = 120;  ///< points: room for mark, image, arrow and the edges of the menu
constexpr int leastTitle = 200;   ///< points, on whatever screen
constexpr int typingPause = 1000; ///< milliseconds

QColor toQColor(const Color& color) {
    return QColor::fromRgbF(
        static_cast<float>(color.red), static_cast<float>(color.green), static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

/// An ampersand of the title is no mark of a shortcut, and its line breaks and tabs lay nothing out. At most `width` points wide.
QString actionText(const std::string& title, const QFont& font, int width) {
    constexpr int widestLetter = 4; // times the average
    QString text = titleText(title).simplified();
    const QFontMetrics metrics(font);
    // Few letters need no measuring.
    if (text.size() * widestLetter * metrics.averageCharWidth() > width)
        text = metrics.elidedText(text, Qt::ElideRight, width);
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

MenuView::MenuView(std::shared_ptr<Menu> menu, std::shared_ptr<ResponderChain> chain, QWidget* parent)
    : QMenu(parent), _menu(std::move(menu)), _chain(std::move(chain)) {
    setSeparatorsCollapsible(true);
    connect(this, &QMenu::aboutToShow, this, [this] {
        if (!std::exchange(_isOpen, true))
            fill();
    });
    connect(this, &QMenu::aboutToHide, this, [this] { didClose(); });
    connect(this, &QMenu::hovered, this, [this](QAction* action) {
        if (!_isPassing)
            makeSubmenu(action);
    });
    _typingTimer.setSingleShot(true);
    _typingTimer.setInterval(typingPause);
    connect(&_typingTimer, &QTimer::timeout, this, [this] { _typed.clear(); });
}

MenuView::~MenuView() {
    // On the screen every item that goes would have the others laid out again.
    hide();
    if (std::exchange(_isOpen, false))
        tellClosed();
    empty();
}

std::shared_ptr<MenuItem> MenuView::item(const QAction* action) const {
    const auto found = _items.find(action);
    return found == _items.end() ? nullptr : found->second;
}

void MenuView::fill() {
    empty();
    setStyle(MenuStyle::shared());
    // The other parts open while the first one is open.
    if (_first == 0)
        _menu->willOpen(*_chain);
    const Menu::Items items = _menu->items();
    const std::size_t end = std::min(items.size(), _first + mostItems);
    for (std::size_t i = _first; i < end; ++i) {
        _hasMarkColumn = _hasMarkColumn || items[i]->state();
        addItem(items[i]);
    }
    if (end < items.size())
        _more = addAction(toQString(localized("More")));
}

void MenuView::empty() {
    const QList<QAction*> old = actions();
    for (QAction* const action : old) {
        delete action->menu();
        delete action;
    }
    _items.clear();
    _more = nullptr;
    _hasMarkColumn = false;
}

void MenuView::addItem(const std::shared_ptr<MenuItem>& item) {
    QAction* const action = item->view() ? new ViewAction(item->view(), this) : new QAction(this);
    if (const auto& image = item->image()) {
        action->setIcon(images::icon(*image));
        action->setIconVisibleInMenu(true);
    }
    QFont letters = font();
    if (item->style() && item->style()->bold) {
        letters.setBold(true);
        action->setFont(letters);
    }
    if (item->isSeparator())
        action->setSeparator(true);
    else if (!item->view())
        action->setText(actionText(item->title(), letters, titleWidth()));
    if (item->state()) {
        action->setCheckable(true);
        action->setChecked(true);
    }
    action->setEnabled(item->isEnabled());
    connect(action, &QAction::triggered, this, [this, item] { _chain->perform(item); });
    _items.emplace(action, item);
    addAction(action);
}

/// So much of a title fits on the screen.
int MenuView::titleWidth() const {
    return std::max(screen()->availableGeometry().width() - besideTitle, leastTitle);
}

void MenuView::makeSubmenu(QAction* action) {
    const std::shared_ptr<MenuItem> pointedAt = item(action);
    const bool isMore = action && action == _more;
    const bool hasSubmenu = isMore || (pointedAt && pointedAt->hasSubmenu() && pointedAt->submenu());
    if (!hasSubmenu || action->menu())
        return;
    auto* const submenu = new MenuView(isMore ? _menu : pointedAt->submenu(), _chain, this);
    if (isMore)
        submenu->_first = _first + mostItems;
    _attachesSubmenu = true;
    action->setMenu(submenu);
    _attachesSubmenu = false;
}

void MenuView::actionEvent(QActionEvent* event) {
    // The item looks the same with its submenu as before, so that nothing is to be laid out again.
    if (!_attachesSubmenu || event->type() != QEvent::ActionChanged)
        QMenu::actionEvent(event);
}

void MenuView::didClose() {
    if (!std::exchange(_isOpen, false))
        return;
    tellClosed();
    // Not at once: the toolkit tells of the chosen action after the menu is gone.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!_isOpen)
                empty();
        },
        Qt::QueuedConnection);
}

void MenuView::tellClosed() {
    if (_first == 0)
        _menu->didClose();
}

void MenuView::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
    QMenu::initStyleOption(option, action);
    if (action && action == _more)
        option->menuItemType = QStyleOptionMenuItem::SubMenu;
    const std::shared_ptr<MenuItem> shown = item(action);
    if (!shown)
        return;
    // Marks have a column of their own.
    option->checkType = QStyleOptionMenuItem::NotCheckable;
    option->menuHasCheckableItems = false;
    if (shown->hasSubmenu())
        option->menuItemType = QStyleOptionMenuItem::SubMenu;
    if (shown->style() && shown->style()->color && shown->isEnabled()) {
        const QColor color = toQColor(*shown->style()->color);
        for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            option->palette.setColor(role, color);
    }
}

bool MenuView::isChosenByClick(const QAction* action) const {
    const std::shared_ptr<MenuItem> pointedAt = item(action);
    return pointedAt && pointedAt->hasSubmenu() && !pointedAt->action().empty() && action->isEnabled();
}

void MenuView::mouseReleaseEvent(QMouseEvent* event) {
    const QAction* const action = actionAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && action == activeAction() && isChosenByClick(action))
        choose(action);
    else
        QMenu::mouseReleaseEvent(event);
}

void MenuView::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isLetter = !event->text().isEmpty() && event->text().front().isPrint() && event->text() != QLatin1String(" ") &&
                          !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (isEnter && isChosenByClick(activeAction())) {
        choose(activeAction());
    } else if (isLetter) {
        _typed += event->text();
        _typingTimer.start();
        goTo(itemThatBegins(_typed));
    } else {
        QMenu::keyPressEvent(event);
    }
}

/// Null where there is none. The active item is left by a first letter, and kept while it still begins with all of them.
QAction* MenuView::itemThatBegins(const QString& letters) const {
    const QList<QAction*> all = actions();
    const qsizetype active = all.indexOf(activeAction());
    const qsizetype first = letters.size() > 1 ? std::max<qsizetype>(active, 0) : active + 1;
    for (qsizetype i = 0; i < all.size(); ++i) {
        QAction* const candidate = all[(first + i) % all.size()];
        if (!candidate->isSeparator() && candidate->isEnabled() && candidate->text().startsWith(letters, Qt::CaseInsensitive))
            return candidate;
    }
    return nullptr;
}

/// By the arrow key: an action that is made the active one in any other way opens its submenu, which would take the next letters.
void MenuView::goTo(const QAction* action) {
    if (!action)
        return;
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    _isPassing = true;
    for (qsizetype steps = actions().size(); steps > 0 && activeAction() != action; --steps)
        QMenu::keyPressEvent(&down);
    _isPassing = false;
    if (activeAction() == action)
        makeSubmenu(activeAction());
}

void MenuView::choose(const QAction* action) {
    const std::shared_ptr<MenuItem> chosen = item(action);
    const std::shared_ptr<ResponderChain> chain = _chain;
    QWidget* top = this;
    while (qobject_cast<QMenu*>(top->parentWidget()))
        top = top->parentWidget();
    // With all menus below it, and, as the toolkit has it, before the action.
    top->hide();
    chain->perform(chosen);
}

} // namespace brindle::desktop
