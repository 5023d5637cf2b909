#pragma once

#include <QString>

namespace brindle::desktop {

/// Whether the host of an address is this machine or one that the open network can't reach: names of the loopback (RFC 6761) and of local
/// networks, and addresses of the special ranges of RFC 6890, IPv4 ones inside IPv6 as well. Other names count as open; they are not looked
/// up.
bool isLocalHost(const QString& host);

} // namespace brindle::desktop
