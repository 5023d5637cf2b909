#include "desktop/web/EnginePage.hpp"

#include "desktop/web/EngineProfile.hpp"
#include "desktop/web/LocalAddress.hpp"
#include "desktop/web/PageScheme.hpp"

#include <QAuthenticator>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <algorithm>
#include <array>
#include <utility>

namespace brindle::desktop {

namespace {

using Navigation = WebPageView::Navigation;

constexpr qint64 activationLimit = 1000; // milliseconds

Navigation navigation(QWebEnginePage::NavigationType type) {
    switch (type) {
    case QWebEnginePage::NavigationTypeLinkClicked:
        return Navigation::linkActivated;
    case QWebEnginePage::NavigationTypeFormSubmitted:
        return Navigation::formSubmitted;
    case QWebEnginePage::NavigationTypeBackForward:
        return Navigation::backForward;
    case QWebEnginePage::NavigationTypeReload:
        return Navigation::reload;
    default:
        return Navigation::other;
    }
}

template <std::size_t count>
bool isAmong(const std::array<const char*, count>& known, const QString& scheme) {
    return std::any_of(known.begin(), known.end(), [&](const char* each) { return scheme == QLatin1String(each); });
}

/// Links that may lead out of the program: no files, no scripts, no schemes by which a page would start other programs.
bool isLinkScheme(const QString& scheme) {
    constexpr std::array<const char*, 4> known = {"http", "https", "mailto", "feed"};
    return isAmong(known, scheme);
}

/// What a page may have in its frames beside the web.
bool isInnerScheme(const QString& scheme) {
    constexpr std::array<const char*, 3> known = {"about", "blob", "data"};
    return scheme == QLatin1String(PageScheme::name) || isAmong(known, scheme);
}

} // namespace

EnginePage::EnginePage(QObject* parent) : QWebEnginePage(&EngineProfile::shared(), parent) {
    connect(this, &QWebEnginePage::newWindowRequested, this, [this](const QWebEngineNewWindowRequest& request) {
        // A click on a link that wants a window of its own; what scripts open, by themselves or on a click, is dropped.
        if (request.isUserInitiated() && request.destination() != QWebEngineNewWindowRequest::InNewDialog)
            allowsLink(request.requestedUrl());
    });
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
        [this](const QUrl& origin, Feature feature) { setFeaturePermission(origin, feature, PermissionDeniedByUser); });
    connect(this, &QWebEnginePage::fullScreenRequested, this, [](QWebEngineFullScreenRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::quotaRequested, this, [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
        [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    // An authenticator that stays empty ends the request; without anybody listening the toolkit would do the same, and warn.
    connect(this, &QWebEnginePage::authenticationRequired, this,
        [](const QUrl&, QAuthenticator* authenticator) { *authenticator = QAuthenticator(); });
}

bool EnginePage::allowsLink(const QUrl& url) const {
    const bool isActivated = _activation.isValid() && _activation.elapsed() < activationLimit;
    return isActivated && isLinkScheme(url.scheme()) && _allows && _allows(Navigation::linkActivated, url);
}

bool EnginePage::isOwnPage(const QUrl& url) const {
    return url.scheme() == QLatin1String(PageScheme::name) ? _ownPages.contains(url.host()) : url == QUrl(QStringLiteral("about:blank"));
}

bool EnginePage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    const bool isGranted = isAllowed(url, type, isMainFrame);
    if (isMainFrame)
        _hasRefused = !isGranted;
    return isGranted;
}

bool EnginePage::isAllowed(const QUrl& url, NavigationType type, bool isMainFrame) const {
    // For an address that it can't show, a grant would have the engine start another program.
    if (type == NavigationTypeLinkClicked)
        return allowsLink(url) && isNetworkAddress(url);
    // What is inside the page is judged by its requests as well, but those of a redirect may be on their way by then.
    if (!isMainFrame)
        return isNetworkAddress(url) ? mayBeWithin(this->url(), url) : isInnerScheme(url.scheme());
    if (isNetworkAddress(url) ? isLocalHost(url.host()) && !_ownHosts.contains(url.host()) : !isOwnPage(url))
        return false;
    return !_allows || _allows(navigation(type), url);
}

} // namespace brindle::desktop
