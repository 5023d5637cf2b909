#include "desktop/web/LocalAddress.hpp"

#include <QHostAddress>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace brindle::desktop {

namespace {

using Subnet = std::pair<QHostAddress, int>;

bool isInAny(const QHostAddress& address, const std::vector<Subnet>& subnets) {
    return std::any_of(subnets.begin(), subnets.end(), [&](const Subnet& subnet) { return address.isInSubnet(subnet); });
}

bool isLocalAddress(const QHostAddress& address) {
    static const std::vector<Subnet> subnets = [] {
        std::vector<Subnet> made;
        for (const char* const text : {"0.0.0.0/8", "10.0.0.0/8", "100.64.0.0/10", "127.0.0.0/8", "169.254.0.0/16", "172.16.0.0/12",
                 "192.0.0.0/24", "192.0.2.0/24", "192.168.0.0/16", "198.18.0.0/15", "198.51.100.0/24", "203.0.113.0/24", "240.0.0.0/4",
                 "::/128", "::1/128", "100::/64", "2001:2::/48", "2001:db8::/32", "fc00::/7", "fe80::/10"})
            made.push_back(QHostAddress::parseSubnet(QString::fromLatin1(text)));
        return made;
    }();
    return isInAny(address, subnets);
}

/// The IPv4 address that an IPv6 one carries: mapped (RFC 4291), translated (RFC 6052), or in 6to4 (RFC 3056); null for none.
QHostAddress carriedAddress(const QHostAddress& address) {
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    const auto at = [&](int first) {
        quint32 value = 0;
        for (int i = first; i < first + 4; ++i)
            value = value << 8U | bytes[i];
        return QHostAddress(value);
    };
    constexpr int last = 12;
    if (address.isInSubnet(QHostAddress::parseSubnet(QStringLiteral("64:ff9b::/96"))))
        return at(last);
    if (address.isInSubnet(QHostAddress::parseSubnet(QStringLiteral("2002::/16"))))
        return at(2);
    bool isMapped = false;
    const quint32 mapped = address.toIPv4Address(&isMapped);
    return isMapped ? QHostAddress(mapped) : QHostAddress();
}

} // namespace

bool isNetworkAddress(const QUrl& url) {
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

bool mayBeWithin(const QUrl& page, const QUrl& url) {
    constexpr int httpPort = 80;
    constexpr int httpsPort = 443;
    const auto port = [](const QUrl& each) { return each.port(each.scheme() == QLatin1String("https") ? httpsPort : httpPort); };
    return !isLocalHost(url.host()) || (page.host() == url.host() && port(page) == port(url));
}

bool isLocalHost(const QString& host) {
    QString name = host.toLower();
    while (name.endsWith(QLatin1Char('.')))
        name.chop(1);
    if (name.startsWith(QLatin1Char('[')) && name.endsWith(QLatin1Char(']')))
        name = name.mid(1, name.size() - 2);
    QHostAddress address;
    if (address.setAddress(name)) {
        if (address.protocol() != QAbstractSocket::IPv6Protocol)
            return isLocalAddress(address);
        const QHostAddress carried = carriedAddress(address);
        return isLocalAddress(address) || (!carried.isNull() && isLocalAddress(carried));
    }
    // A name without a dot is found on the local network only.
    if (!name.contains(QLatin1Char('.')))
        return true;
    constexpr std::array<const char*, 5> endings = {".localhost", ".local", ".internal", ".lan", ".home.arpa"};
    return std::any_of(endings.begin(), endings.end(), [&](const char* ending) { return name.endsWith(QLatin1String(ending)); });
}

} // namespace brindle::desktop
