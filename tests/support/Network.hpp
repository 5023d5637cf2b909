#pragma once

#include <string>

namespace brindle::testsupport {

/// Runs `ip` (iproute2) with these arguments; whether it went well.
bool ip(const std::string& arguments);

/// Gives the calling process a network of its own, in which nothing is up but the pair of devices "in0" and "out0" that it has then; false
/// where that can't be had. To be called before other threads run.
bool leaveNetwork();

/// Gives "in0" an address and a default route.
bool addDefaultRoute();

} // namespace brindle::testsupport
