#pragma once

#include <filesystem>

namespace brindle {

/// The folder of the program's resources: "../share/brindle" seen from the program's own file. It may not exist. Thread: any.
std::filesystem::path resourceFolder();

} // namespace brindle
