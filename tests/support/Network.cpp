#include "tests/support/Network.hpp"

#include <cstdlib>
#include <sched.h>

namespace brindle::testsupport {

bool ip(const std::string& arguments) {
    return std::system(("ip " + arguments + " >/dev/null 2>&1").c_str()) == 0;
}

bool leaveNetwork() {
    const bool isApart = ::unshare(CLONE_NEWNET) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNET) == 0;
    return isApart && ip("link add in0 type veth peer name out0");
}

bool addDefaultRoute() {
    return ip("address add 10.9.0.2/24 dev in0") && ip("link set out0 up") && ip("link set in0 up") && ip("route add default via 10.9.0.1");
}

} // namespace brindle::testsupport
