#pragma once

#include <QWebEngineUrlRequestInterceptor>

namespace brindle::desktop {

/// Refuses what a page asks of this machine and its private network, unless the page came from the same server there, every socket, and
/// every request that is none over the network: files and other programs' schemes. Where a redirect leads is told so late that the request
/// may be on its way: on the road from the open network to the private one the engine's own block stands before it (Private Network
/// Access), and for pages and frames `EnginePage` does. Thread: main.
class RequestInterceptor : public QWebEngineUrlRequestInterceptor {
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo& info) override;
};

} // namespace brindle::desktop
