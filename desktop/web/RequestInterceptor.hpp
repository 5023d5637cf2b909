#pragma once

#include <QWebEngineUrlRequestInterceptor>

namespace brindle::desktop {

/// Refuses what a page asks of this machine and its private network, unless the page came from the same server there, every socket, and
/// every request that is none over the network: files and other programs' schemes. Thread: main.
class RequestInterceptor : public QWebEngineUrlRequestInterceptor {
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo& info) override;
};

} // namespace brindle::desktop
