#pragma once

#include "desktop/system/DBusTypes.hpp"
#include "desktop/system/MenuIcons.hpp"
#include "platform/Menu.hpp"
#include "platform/ResponderChain.hpp"

#include <QObject>
#include <QTimer>
#include <chrono>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace brindle::desktop {

/// A menu of the program as panels show it that draw menus themselves (com.canonical.dbusmenu). Every item has a number; one that is there
/// again after a change keeps its number. Changes are told together, and nothing is made for them until the panel asks. As many menus as
/// are likely to be looked at are told at once, the others when the panel is about to show them; a large one in parts, as `MenuView` has
/// it. While the panel has it open, the menu counts as open to its delegate. Thread: main.
class MenuExport : public QObject, public MenuObserver {
    Q_OBJECT

public:
    /// How long a panel is not told again of a change.
    static constexpr std::chrono::milliseconds changeInterval{250};
    /// How long a menu counts as open that the panel was about to show, and how long one that it opened and nobody moved in since: some
    /// panels don't tell that they closed it.
    static constexpr std::chrono::milliseconds showLimit{3'000};
    static constexpr std::chrono::milliseconds openLimit{60'000};

    /// Held by a shared pointer, as menus hold their observers weakly.
    static std::shared_ptr<MenuExport> make(std::shared_ptr<Menu> menu, std::shared_ptr<ResponderChain> chain);
    ~MenuExport() override;

    uint revision() const { return _revision; }
    /// The item with those below it that are told, as many levels as `depth`; negative: all that the bus can carry. An unknown number gives
    /// an item with nothing.
    DBusMenuLayout layout(int id, int depth);
    /// Empty for an unknown number.
    QVariantMap properties(int id) const;
    bool contains(int id) const { return _nodes.contains(id); }
    /// Makes an item's menu ready to be shown; whether its layout is another now.
    bool aboutToShow(int id);
    /// The panel shows an item's menu, or shows it no more; the whole for 0.
    void opened(int id);
    void closed(int id);
    /// The person chose an item, which closes the menu. Nothing for an unknown number.
    void choose(int id);

    void menuDidChange(Menu& menu) override;
    void menuItemDidChange(Menu& menu, MenuItem& item) override;

signals:
    void layoutUpdated(uint revision, int parent);
    /// `removed`: what the items have not, and may have had.
    void propertiesUpdated(const brindle::desktop::DBusMenuPropertiesList& items, const brindle::desktop::DBusMenuKeysList& removed);

private:
    /// What makes two items the same: their menu, what they do, what they stand for or are called, and which of such they are.
    using Key = std::tuple<int, std::string, const Object*, std::string, int>;
    using Ids = std::map<Key, int>;

    struct Node {
        std::shared_ptr<MenuItem> item; ///< null for the root, and for what leads to the next part of a menu
        std::shared_ptr<Menu> menu;     ///< null for an item without one to be shown
        std::size_t first = 0;          ///< where this part of the menu begins
        bool isFilled = false;
        std::vector<int> children;
    };

    MenuExport(std::shared_ptr<Menu> menu, std::shared_ptr<ResponderChain> chain);
    void open(std::chrono::milliseconds limit);
    void close();
    void rebuild();
    void tellLayout();
    void tellProperties();
    DBusMenuLayout presentLayout(int id, int levels) const;
    void fill(int id);
    int addItem(int parent, const std::shared_ptr<MenuItem>& item, std::map<Key, int>& counts);
    void observe(const std::shared_ptr<Menu>& menu);
    int idOf(Key key);

    const std::shared_ptr<Menu> _menu;
    const std::shared_ptr<ResponderChain> _chain;
    std::weak_ptr<MenuExport> _self;
    std::unordered_map<int, Node> _nodes;
    std::unordered_map<const MenuItem*, int> _idsOfItems;
    std::map<const Menu*, std::weak_ptr<Menu>> _observed;
    mutable MenuIcons _icons; ///< of the present items
    Ids _ids;
    Ids _formerIds; ///< of the rebuild before
    int _lastId = 0;
    uint _revision = 1;
    bool _isStale = true;      ///< the menu changed since the last rebuild
    bool _isNoticeDue = false; ///< the panel is to be told of that
    bool _isFilling = false;
    std::set<int> _changed; ///< whose properties are to be told
    bool _isOpen = false;
    QTimer _openTimer;   ///< runs while it is
    QTimer _layoutTimer; ///< runs while a panel is not to be told of changes, and tells of those that came meanwhile
};

} // namespace brindle::desktop
