#pragma once

#include "desktop/toolkit/WebPluginInterface.hpp"

#include <QElapsedTimer>
#include <QSet>
#include <QUrl>
#include <QWebEnginePage>
#include <functional>

namespace brindle::desktop {

/// A page of an article: asks before each navigation, and answers all that a page asks of a person with no. A link is followed only where a
/// person has just pressed something (transient activation, section 6.4 of the HTML standard); scripts press nothing. Thread: main.
class EnginePage : public QWebEnginePage {
    Q_OBJECT

public:
    using Allows = std::function<bool(WebPageView::Navigation, const QUrl&)>;

    /// Of the shared profile.
    explicit EnginePage(QObject* parent);

    void setAllowsNavigation(Allows allows) { _allows = std::move(allows); }
    /// What the program itself is about to load, and a person may come back to; its host may be of a private network.
    void addOwnAddress(const QUrl& url) { _ownHosts.insert(url.host()); }
    /// A page that the program made and is about to load; a person may come back to it.
    void addOwnPage(const QUrl& url) { _ownPages.insert(url.host()); }
    /// A person has pressed a button or a key on the page.
    void noteActivation() { _activation.start(); }
    /// Whether the last navigation that was asked for was refused.
    bool hasRefused() const { return _hasRefused; }

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
    QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override { return false; }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {}

private:
    bool isAllowed(const QUrl& url, NavigationType type, bool isMainFrame) const;
    bool allowsLink(const QUrl& url) const;
    bool isOwnPage(const QUrl& url) const;

    Allows _allows;
    QSet<QString> _ownHosts;   ///< of what the program loaded from the network
    QSet<QString> _ownPages;   ///< the hosts of their addresses
    QElapsedTimer _activation; ///< since the last one; invalid before the first
    bool _hasRefused = false;
};

} // namespace brindle::desktop
