#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QtPlugin>
#include <functional>

class QWidget;

namespace brindle::desktop {

/// The variable of the environment from which the engine takes its switches.
inline constexpr const char* webEngineSwitches = "QTWEBENGINE_CHROMIUM_FLAGS";

/// A widget with a web page in it, made by the plugin. Toolkit types alone, so that the plugin needs no other part of the program. What a
/// page runs can read no file, gets no permission, starts no download, opens no window and no socket, and asks nothing of this machine or
/// its private network unless it came from there. Thread: main.
class WebPageView {
public:
    /// Why a page goes to an address, as the platform's web views number it.
    enum class Navigation { linkActivated = 0, formSubmitted, backForward, reload, formResubmitted, other = -1 };

    /// What a page tells; any may be empty.
    struct Events {
        std::function<bool(Navigation, const QUrl&)> allowsNavigation; ///< asked before each
        std::function<void()> didStart;
        std::function<void()> didFinish; ///< not after a failure
        std::function<void()> progressDidChange;
        std::function<void()> titleDidChange;
        std::function<void()> processDidTerminate; ///< nothing is shown any more until `reload`
    };

    virtual ~WebPageView() = default;
    /// Belongs to its parent; null when that has destroyed it.
    virtual QWidget* widget() const = 0;
    virtual void setEvents(Events events) = 0;
    /// A page of any size in UTF-8, which comes from nowhere: relative addresses in it lead nowhere. Its root element has the attribute
    /// "data-color-scheme", which says "light" or "dark" as the program is at any moment.
    virtual void setHtml(const QByteArray& html) = 0;
    /// Over http or https, from the open network or from `host`, which may be one of this machine or its private network: false, with
    /// nothing done, for any other address. `seconds`: after so long without an answer the load ends.
    virtual bool load(const QUrl& url, const QString& host, double seconds) = 0;
    virtual void reload() = 0;
    virtual bool canGoBack() const = 0;
    virtual bool canGoForward() const = 0;
    virtual void goBack() = 0;
    virtual void goForward() = 0;
    /// From 0 to 1.
    virtual double progress() const = 0;
    /// Empty where the page has none.
    virtual QString title() const = 0;
    /// Scrolls by most of what is seen; `done` is told whether the page was at its end already, which none is before it is read. A view
    /// that is gone by then tells nothing.
    virtual void scrollPage(bool down, std::function<void(bool wasAtEnd)> done) = 0;
};

/// What the plugin's root object offers.
class WebPluginInterface {
public:
    virtual ~WebPluginInterface() = default;
    /// Belongs to the caller, the widget to `parent`.
    virtual WebPageView* makePageView(QWidget* parent) = 0;
};

} // namespace brindle::desktop

Q_DECLARE_INTERFACE(brindle::desktop::WebPluginInterface, "org.brindle.WebPlugin/1")
