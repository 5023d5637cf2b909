#pragma once

#include <QString>
#include <QUrl>

namespace brindle::desktop {

/// Whether an address is one of the web: http or https.
bool isNetworkAddress(const QUrl& url);

/// Whether the host of an address is this machine or one that the open network can't reach: names of the loopback (RFC 6761) and of local
/// networks, and addresses of the special ranges of RFC 6890, IPv4 ones inside IPv6 as well. Other names count as open; they are not looked
/// up.
bool isLocalHost(const QString& host);

/// Whether a page may have something from an address inside it: from anywhere on the open network, but from this machine and its private
/// network only what comes from the page's own server. Another port of the same machine is another server.
bool mayBeWithin(const QUrl& page, const QUrl& url);

} // namespace brindle::desktop
