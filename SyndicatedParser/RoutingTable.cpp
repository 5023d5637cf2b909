#include "SyndicatedParser/RoutingTable.hpp"

#include "SyndicatedParser/NetworkRoute.hpp"

#include <array>
#include <cerrno>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

namespace brindle {

namespace {

constexpr std::uint32_t dumpSequence = 1;

int openNetlink(std::uint32_t groups) {
    const int descriptor = ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
    if (descriptor < 0)
        return -1;
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = groups;
    if (::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return descriptor;
    const int error = errno;
    ::close(descriptor);
    errno = error;
    return -1;
}

/// Whether a route message tells of a default route that leads out of the machine. A refusing ("unreachable") or local one does not.
bool isUsableDefault(const nlmsghdr& header) {
    const auto& route = *static_cast<const rtmsg*>(NLMSG_DATA(&header));
    if (route.rtm_dst_len != 0 || route.rtm_type != RTN_UNICAST || (route.rtm_flags & (RTNH_F_DEAD | RTNH_F_LINKDOWN)) != 0)
        return false;
    std::uint32_t table = route.rtm_table;
    auto left = static_cast<int>(RTM_PAYLOAD(&header));
    for (const rtattr* attribute = RTM_RTA(&route); RTA_OK(attribute, left); attribute = RTA_NEXT(attribute, left)) {
        if (attribute->rta_type == RTA_TABLE && RTA_PAYLOAD(attribute) >= sizeof table)
            __builtin_memcpy(&table, RTA_DATA(attribute), sizeof table);
    }
    return table == RT_TABLE_MAIN;
}

enum class Dump { goesOn, ended, failed };

/// Reads one datagram of a dump and notes a usable default route in `found`.
Dump readDump(int descriptor, bool& found) {
    alignas(nlmsghdr) std::array<char, 1 << 15> buffer;
    const ssize_t size = ::recv(descriptor, buffer.data(), buffer.size(), 0);
    if (size < 0)
        return errno == EINTR ? Dump::goesOn : Dump::failed;
    auto left = static_cast<unsigned>(size);
    for (auto* header = reinterpret_cast<const nlmsghdr*>(buffer.data()); NLMSG_OK(header, left); header = NLMSG_NEXT(header, left)) {
        if (header->nlmsg_seq != dumpSequence)
            continue;
        if (header->nlmsg_type == NLMSG_DONE)
            return Dump::ended;
        if (header->nlmsg_type == NLMSG_ERROR) {
            errno = EIO;
            return Dump::failed;
        }
        if (header->nlmsg_type == RTM_NEWROUTE && isUsableDefault(*header))
            found = true;
    }
    return Dump::goesOn;
}

} // namespace

tl::expected<std::uint32_t, std::int32_t> RoutingTable::defaultRouteFlags() {
    bool found = false;
    for (const std::uint8_t family : {std::uint8_t{AF_INET}, std::uint8_t{AF_INET6}}) {
        const int descriptor = openNetlink(0);
        if (descriptor < 0)
            return tl::unexpected(errno);
        struct {
            nlmsghdr header;
            rtmsg route;
        } request{};
        request.header.nlmsg_len = NLMSG_LENGTH(sizeof(rtmsg));
        request.header.nlmsg_type = RTM_GETROUTE;
        request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
        request.header.nlmsg_seq = dumpSequence;
        request.route.rtm_family = family;
        Dump state = ::send(descriptor, &request, request.header.nlmsg_len, 0) < 0 ? Dump::failed : Dump::goesOn;
        while (state == Dump::goesOn)
            state = readDump(descriptor, found);
        const int error = errno;
        ::close(descriptor);
        if (state == Dump::failed)
            return tl::unexpected(error);
    }
    return found ? NetworkReachabilityFlags::reachable : 0U;
}

tl::expected<int, std::int32_t> RoutingTable::openChanges() {
    const int descriptor = openNetlink(RTMGRP_LINK | RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR);
    if (descriptor < 0)
        return tl::unexpected(errno);
    return descriptor;
}

} // namespace brindle
