#include "desktop/web/RequestInterceptor.hpp"

#include "desktop/web/LocalAddress.hpp"
#include "desktop/web/PageScheme.hpp"

#include <QWebEngineUrlRequestInfo>
#include <algorithm>
#include <array>

namespace brindle::desktop {

namespace {

/// What a page may have inside it. What is inside the page already (data:, blob:) asks nobody. No sockets (ws:, wss:): nothing judges them
/// by the address that they reach in the end, as it does requests.
bool isKnownScheme(const QString& scheme) {
    constexpr std::array<const char*, 5> known = {"http", "https", "data", "blob", "about"};
    return scheme == QLatin1String(PageScheme::name) ||
           std::any_of(known.begin(), known.end(), [&](const char* each) { return scheme == QLatin1String(each); });
}

} // namespace

void RequestInterceptor::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const QUrl url = info.requestUrl();
    if (!isKnownScheme(url.scheme()))
        return info.block(true);
    // Nothing judges the sockets of such a worker, which outlives its page.
    if (info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeServiceWorker)
        return info.block(true);
    // Whole pages are judged by the page, which knows what the program asked for.
    if (info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame || url.host().isEmpty() ||
        url.scheme() == QLatin1String(PageScheme::name))
        return;
    if (!mayBeWithin(info.firstPartyUrl(), url))
        info.block(true);
}

} // namespace brindle::desktop
