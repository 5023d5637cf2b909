#pragma once

#include <QByteArray>
#include <QHash>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

namespace brindle::desktop {

/// Serves the pages that the program makes, of any size: the engine takes no more than 2 MB handed to it directly. Each page is an origin
/// of its own, so that none sees what another stored. Thread: main.
class PageScheme : public QWebEngineUrlSchemeHandler {
public:
    static const QByteArray name;

    /// Once, before anything else of the engine.
    static void registerScheme();

    using QWebEngineUrlSchemeHandler::QWebEngineUrlSchemeHandler;

    /// The address of a page from now on, until `remove`.
    QUrl add(const QByteArray& html);
    void remove(const QUrl& url);

    void requestStarted(QWebEngineUrlRequestJob* job) override;

private:
    QHash<QString, QByteArray> _pages; ///< by the host of the address
};

} // namespace brindle::desktop
