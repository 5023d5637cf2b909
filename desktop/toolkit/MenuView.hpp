#pragma once

#include "platform/Menu.hpp"
#include "platform/ResponderChain.hpp"

#include <QMenu>
#include <QString>
#include <QTimer>
#include <cstddef>
#include <memory>
#include <unordered_map>

namespace brindle::desktop {

/// Shows a menu of the program. Each time that it opens it takes the items as they are then, after who takes their actions was asked, and
/// never changes while it is open; a submenu's view is made when somebody points at its item. An item that has an action beside its submenu
/// is chosen by a click or Enter; pointing at it, or the arrow key, opens the submenu. Who types letters goes to the next item that begins
/// with them. Titles are shown whole as far as the screen is wide. Of a menu with more items than can be laid out at once, each part but
/// the first is a submenu of the one before. Thread: main.
class MenuView : public QMenu {
    Q_OBJECT

public:
    /// How many items are shown in one part.
    static constexpr std::size_t mostItems = 1000;

    MenuView(std::shared_ptr<Menu> menu, std::shared_ptr<ResponderChain> chain, QWidget* parent = nullptr);
    ~MenuView() override;

    const std::shared_ptr<Menu>& menu() const { return _menu; }
    /// Null for an action that is not one of the menu as it opened last.
    std::shared_ptr<MenuItem> item(const QAction* action) const;
    /// Whether a column for check marks stands before the icons.
    bool hasMarkColumn() const { return _hasMarkColumn; }

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
    void actionEvent(QActionEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fill();
    void empty();
    void addItem(const std::shared_ptr<MenuItem>& item);
    int titleWidth() const;
    void makeSubmenu(QAction* action);
    void didClose();
    void tellClosed();
    void choose(const QAction* action);
    QAction* itemThatBegins(const QString& letters) const;
    void goTo(const QAction* action);
    bool isChosenByClick(const QAction* action) const;

    const std::shared_ptr<Menu> _menu;
    const std::shared_ptr<ResponderChain> _chain;
    std::size_t _first = 0; ///< the place of this part's first item in the menu
    std::unordered_map<const QAction*, std::shared_ptr<MenuItem>> _items;
    QAction* _more = nullptr; ///< that leads to the next part; null where there is none
    bool _hasMarkColumn = false;
    bool _isOpen = false;
    bool _attachesSubmenu = false;
    bool _isPassing = false; ///< items are passed on the way to another
    QString _typed;          ///< the letters typed without a pause
    QTimer _typingTimer;     ///< runs until a pause is one
};

} // namespace brindle::desktop
