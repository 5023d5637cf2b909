#pragma once

#include "desktop/windows/QtWindowFactory.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/shell/AppDelegateFixture.hpp"

#include <QAccessible>
#include <QApplication>
#include <QMainWindow>
#include <QTest>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace brindle::desktop {

/// The application with the windows of the desktop, looked at and used as a person does: by titles, names and keys.
class DialogTest : public AppDelegateTest {
protected:
    DialogTest() {
        environment.windows = std::make_shared<QtWindowFactory>(WindowEnvironment{environment.defaults, {}}, alerts,
            std::make_shared<StatusMenu>(), std::make_shared<WebPluginLoader>(folder / "none.so"));
        remake();
    }

    /// The window with that title that is on the screen; null for none.
    static QMainWindow* window(const std::string& title) {
        for (QWidget* const each : QApplication::topLevelWidgets()) {
            if (each->isVisible() && each->windowTitle().toStdString() == title)
                return qobject_cast<QMainWindow*>(each);
        }
        return nullptr;
    }

    /// What a screen reader calls a widget: its label, else its name.
    static std::string accessibleName(QWidget* widget) {
        QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(widget);
        if (!interface)
            return "";
        const auto labels = interface->relations(QAccessible::Label);
        return (labels.isEmpty() ? interface : labels.front().first)->text(QAccessible::Name).toStdString();
    }

    /// The widget of that kind and name in a window; a failure where there is none that is shown.
    template <typename Widget>
    static Widget& find(const QWidget& root, const std::string& name) {
        std::string others;
        for (Widget* const each : root.findChildren<Widget*>()) {
            if (!each->isVisible())
                continue;
            if (accessibleName(each) == name)
                return *each;
            others += accessibleName(each) + ", ";
        }
        throw std::runtime_error("nothing is called " + name + ", but " + others);
    }

    /// The names of all that Tab stops at, from what has the keyboard on, once around.
    static std::vector<std::string> tabOrder(QWidget& shown) {
        std::vector<std::string> names;
        QWidget* const first = shown.focusWidget();
        for (QWidget* each = first; names.empty() || (each && each != first && names.size() < 50); each = shown.focusWidget()) {
            names.push_back(accessibleName(each));
            QTest::keyClick(each, Qt::Key_Tab);
        }
        return names;
    }

    static bool waitUntil(const std::function<bool()>& condition) {
        return runEventLoop([&] {
            RunLoop::main().runPending();
            return condition();
        });
    }
};

} // namespace brindle::desktop
