#include "desktop/system/MenuExport.hpp"

#include "desktop/toolkit/MenuView.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QCoreApplication>
#include <algorithm>
#include <deque>
#include <utility>

namespace brindle::desktop {

namespace {

/// How many items are told before anyone looks.
constexpr std::size_t itemsAtOnce = 300;
/// A message of the bus nests 64 containers at most, and each level of a layout takes three.
constexpr int deepestLayout = 16;

/// A menu with a delegate gets what it shows when it opens, a view. Panels draw none: the item above it is chosen for itself.
bool isForView(const Menu& menu) {
    return !menu.delegate.expired();
}

/// Counts at the end of a title change from one rebuild to the next.
std::string titleWithoutCount(const std::string& title) {
    const std::size_t count = title.ends_with(')') ? title.rfind(" (") : std::string::npos;
    return title.substr(0, count);
}

/// Underscores would mark shortcuts.
QString label(const std::string& title) {
    return titleText(title).simplified().replace(QLatin1Char('_'), QLatin1String("__"));
}

} // namespace

std::shared_ptr<MenuExport> MenuExport::make(std::shared_ptr<Menu> menu, std::shared_ptr<ResponderChain> chain) {
    const std::shared_ptr<MenuExport> made(new MenuExport(std::move(menu), std::move(chain)));
    made->_self = made;
    made->observe(made->_menu);
    return made;
}

MenuExport::MenuExport(std::shared_ptr<Menu> menu, std::shared_ptr<ResponderChain> chain)
    : _menu(std::move(menu)), _chain(std::move(chain)) {
    _layoutTimer.setSingleShot(true);
    connect(&_layoutTimer, &QTimer::timeout, this, [this] { tellLayout(); });
    _openTimer.setSingleShot(true);
    connect(&_openTimer, &QTimer::timeout, this, [this] { close(); });
}

MenuExport::~MenuExport() {
    close();
}

void MenuExport::rebuild() {
    _isStale = false;
    std::set<int> looked;
    for (const auto& [id, node] : _nodes) {
        if (node.isFilled)
            looked.insert(id);
    }
    _nodes.clear();
    _idsOfItems.clear();
    _changed.clear();
    _icons.clear();
    _formerIds = std::exchange(_ids, {});
    _nodes[0].menu = _menu;
    std::deque<int> toFill = {0};
    while (!toFill.empty()) {
        const int id = toFill.front();
        toFill.pop_front();
        const bool isPart = _nodes[id].first > 0;
        if (id != 0 && !looked.contains(id) && (isPart || _nodes.size() + _nodes[id].menu->items().size() > itemsAtOnce))
            continue;
        fill(id);
        for (const int child : _nodes[id].children) {
            if (_nodes[child].menu)
                toFill.push_back(child);
        }
    }
}

void MenuExport::fill(int id) {
    const std::shared_ptr<Menu> menu = _nodes[id].menu;
    _isFilling = true;
    menu->update(*_chain);
    std::map<Key, int> counts;
    std::vector<int> children;
    const Menu::Items& items = menu->items();
    const std::size_t end = std::min(items.size(), _nodes[id].first + MenuView::mostItems);
    for (std::size_t i = _nodes[id].first; i < end; ++i)
        children.push_back(addItem(id, items[i], counts));
    if (end < items.size()) {
        children.push_back(idOf({id, std::string(), nullptr, std::string(), -1}));
        _nodes[children.back()] = {nullptr, menu, end, false, {}};
    }
    _nodes[id].children = std::move(children);
    _nodes[id].isFilled = true;
    observe(menu);
    _isFilling = false;
}

int MenuExport::addItem(int parent, const std::shared_ptr<MenuItem>& item, std::map<Key, int>& counts) {
    const std::shared_ptr<Object> object = item->representedObject();
    Key key = {parent, std::string(item->action()), object.get(), object ? std::string() : titleWithoutCount(item->title()), 0};
    std::get<4>(key) = counts[key]++;
    const int id = idOf(std::move(key));
    const std::shared_ptr<Menu> submenu = item->submenu();
    const bool isShown = submenu && !isForView(*submenu);
    _nodes[id] = {item, isShown ? submenu : nullptr, 0, false, {}};
    _idsOfItems[item.get()] = id;
    return id;
}

void MenuExport::observe(const std::shared_ptr<Menu>& menu) {
    std::erase_if(_observed, [](const auto& each) { return each.second.expired(); });
    if (_observed.emplace(menu.get(), menu).second)
        menu->addObserver(_self);
}

int MenuExport::idOf(Key key) {
    const auto known = _ids.find(key);
    if (known != _ids.end())
        return known->second;
    const auto former = _formerIds.find(key);
    const int id = former == _formerIds.end() ? ++_lastId : former->second;
    _ids.emplace(std::move(key), id);
    return id;
}

DBusMenuLayout MenuExport::layout(int id, int depth) {
    if (_isStale)
        rebuild();
    return presentLayout(id, depth < 0 ? deepestLayout : std::min(depth, deepestLayout));
}

DBusMenuLayout MenuExport::presentLayout(int id, int levels) const {
    DBusMenuLayout result = {id, properties(id), {}};
    const auto found = _nodes.find(id);
    if (found == _nodes.end() || levels == 0)
        return result;
    for (const int child : found->second.children)
        result.children.append(QVariant::fromValue(presentLayout(child, levels - 1)));
    return result;
}

QVariantMap MenuExport::properties(int id) const {
    QVariantMap result;
    const auto found = _nodes.find(id);
    if (found == _nodes.end())
        return result;
    const Node& node = found->second;
    if (node.menu)
        result.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
    if (!node.item) {
        if (node.first > 0)
            result.insert(QStringLiteral("label"), toQString(localized("More")));
        return result;
    }
    const MenuItem& item = *node.item;
    if (item.isSeparator()) {
        result.insert(QStringLiteral("type"), QStringLiteral("separator"));
        return result;
    }
    result.insert(QStringLiteral("label"), label(item.title()));
    if (!item.isEnabled())
        result.insert(QStringLiteral("enabled"), false);
    if (item.state()) {
        result.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
        result.insert(QStringLiteral("toggle-state"), 1);
    }
    if (item.image())
        result.insert(QStringLiteral("icon-data"), _icons.data(*item.image()));
    return result;
}

void MenuExport::open(std::chrono::milliseconds limit) {
    if (!std::exchange(_isOpen, true))
        _menu->willOpen(*_chain);
    _openTimer.start(limit);
}

void MenuExport::close() {
    _openTimer.stop();
    if (std::exchange(_isOpen, false))
        _menu->didClose();
}

void MenuExport::opened(int id) {
    if (id == 0 || _isOpen)
        open(openLimit);
}

void MenuExport::closed(int id) {
    if (id == 0)
        close();
}

bool MenuExport::aboutToShow(int id) {
    // Some panels only look, and open nothing.
    if (id != 0)
        opened(id);
    else if (!_isOpen)
        open(showLimit);
    if (_isStale) {
        rebuild();
        return contains(id);
    }
    const auto found = _nodes.find(id);
    if (found == _nodes.end() || !found->second.menu)
        return false;
    if (!found->second.isFilled) {
        fill(id);
        ++_revision;
        return true;
    }
    found->second.menu->update(*_chain);
    return false;
}

void MenuExport::choose(int id) {
    const auto found = _nodes.find(id);
    if (found == _nodes.end() || !found->second.item)
        return;
    const std::shared_ptr<MenuItem> item = found->second.item;
    close();
    item->setEnabled(_chain->validate(*item));
    if (item->isEnabled())
        _chain->perform(item);
}

void MenuExport::menuDidChange(Menu&) {
    if (_isFilling)
        return;
    _isStale = true;
    _isNoticeDue = true;
    if (!_layoutTimer.isActive())
        _layoutTimer.start(0);
}

void MenuExport::menuItemDidChange(Menu&, MenuItem& item) {
    const auto found = _idsOfItems.find(&item);
    if (_isFilling || _isStale || found == _idsOfItems.end())
        return;
    if (_changed.empty())
        QMetaObject::invokeMethod(
            this, [this] { tellProperties(); }, Qt::QueuedConnection);
    _changed.insert(found->second);
}

/// A menu that is made anew tells of each item; its reader gets one notice, and a library that is fetched as a whole makes few.
void MenuExport::tellLayout() {
    if (!std::exchange(_isNoticeDue, false))
        return;
    ++_revision;
    _layoutTimer.start(changeInterval);
    emit layoutUpdated(_revision, 0);
}

void MenuExport::tellProperties() {
    DBusMenuPropertiesList items;
    DBusMenuKeysList removed;
    for (const int id : std::exchange(_changed, {})) {
        DBusMenuProperties item = {id, properties(id)};
        // What is at its default is not among the properties, but may have been something else before.
        if (!item.properties.contains(QStringLiteral("enabled")))
            item.properties.insert(QStringLiteral("enabled"), true);
        DBusMenuKeys absent = {id, {}};
        for (const QString& key : {QStringLiteral("toggle-type"), QStringLiteral("toggle-state"), QStringLiteral("icon-data")}) {
            if (!item.properties.contains(key))
                absent.keys.append(key);
        }
        items.append(item);
        if (!absent.keys.isEmpty())
            removed.append(absent);
    }
    if (!items.isEmpty())
        emit propertiesUpdated(items, removed);
}

} // namespace brindle::desktop
