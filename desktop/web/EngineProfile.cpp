#include "desktop/web/EngineProfile.hpp"

#include "desktop/web/RequestInterceptor.hpp"

#include <QCoreApplication>
#include <QWebEngineDownloadRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <array>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr std::array<std::pair<QWebEngineSettings::WebAttribute, bool>, 16> attributes = {{
    {QWebEngineSettings::JavascriptCanOpenWindows, false},
    {QWebEngineSettings::JavascriptCanAccessClipboard, false},
    {QWebEngineSettings::JavascriptCanPaste, false},
    {QWebEngineSettings::LocalContentCanAccessFileUrls, false},
    {QWebEngineSettings::LocalContentCanAccessRemoteUrls, false},
    {QWebEngineSettings::AllowRunningInsecureContent, false},
    {QWebEngineSettings::AllowGeolocationOnInsecureOrigins, false},
    {QWebEngineSettings::AllowWindowActivationFromJavaScript, false},
    {QWebEngineSettings::PluginsEnabled, false},
    {QWebEngineSettings::PdfViewerEnabled, false},
    {QWebEngineSettings::ScreenCaptureEnabled, false},
    {QWebEngineSettings::HyperlinkAuditingEnabled, false},
    {QWebEngineSettings::DnsPrefetchEnabled, false},
    {QWebEngineSettings::WebRTCPublicInterfacesOnly, true},
    {QWebEngineSettings::PlaybackRequiresUserGesture, true},
    {QWebEngineSettings::NavigateOnDropEnabled, false},
}};

/// Takes calls between browsers (WebRTC) and service workers from every page: they open connections that nothing judges, to this machine as
/// well. It keeps off the many pages that look around by them, not one that fetches them out of a frame at the moment when it makes it: for
/// calls there is no switch, and the script of a service worker is refused besides.
QWebEngineScript withoutCallsAndServices() {
    QWebEngineScript script;
    script.setName(QStringLiteral("without calls and services"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(QStringLiteral("delete window.RTCPeerConnection; delete window.webkitRTCPeerConnection;"
                                        "delete Navigator.prototype.serviceWorker;"));
    return script;
}

} // namespace

EngineProfile& EngineProfile::shared() {
    static auto* const profile = new EngineProfile(QCoreApplication::instance());
    return *profile;
}

EngineProfile::EngineProfile(QObject* parent) : QWebEngineProfile(parent), _pages(new PageScheme(this)) {
    setHttpCacheType(MemoryHttpCache);
    setPersistentCookiesPolicy(NoPersistentCookies);
    setSpellCheckEnabled(false);
    setUrlRequestInterceptor(new RequestInterceptor(this));
    installUrlSchemeHandler(PageScheme::name, _pages);
    scripts()->insert(withoutCallsAndServices());
    for (const auto& [attribute, isOn] : attributes)
        settings()->setAttribute(attribute, isOn);
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::AllowUnknownUrlSchemesFromUserInteraction);
    connect(this, &QWebEngineProfile::downloadRequested, this, [](QWebEngineDownloadRequest* download) { download->cancel(); });
}

} // namespace brindle::desktop
