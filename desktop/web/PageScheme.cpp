#include "desktop/web/PageScheme.hpp"

#include <QBuffer>
#include <QUuid>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace brindle::desktop {

const QByteArray PageScheme::name = QByteArrayLiteral("brindle-page");

void PageScheme::registerScheme() {
    QWebEngineUrlScheme scheme(name);
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QUrl PageScheme::add(const QByteArray& html) {
    QUrl url;
    url.setScheme(QString::fromLatin1(name));
    url.setHost(QUuid::createUuid().toString(QUuid::WithoutBraces));
    url.setPath(QStringLiteral("/"));
    _pages.insert(url.host(), html);
    return url;
}

void PageScheme::remove(const QUrl& url) {
    _pages.remove(url.host());
}

void PageScheme::requestStarted(QWebEngineUrlRequestJob* job) {
    const QUrl url = job->requestUrl();
    const auto page = _pages.constFind(url.host());
    // A page has no other files: what it names by a relative address leads nowhere.
    if (page == _pages.constEnd() || url.path() != QLatin1String("/") || job->requestMethod() != "GET")
        return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    auto* const body = new QBuffer(job);
    body->setData(*page);
    job->reply(QByteArrayLiteral("text/html;charset=utf-8"), body);
}

} // namespace brindle::desktop
