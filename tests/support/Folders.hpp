#pragma once

#include <string>

namespace brindle::testsupport {

/// The root of the source tree. (Functions, so that one object file alone depends on where the tree lies.)
std::string sourceFolder();

/// The root of the build that the running test belongs to.
std::string buildFolder();

} // namespace brindle::testsupport
