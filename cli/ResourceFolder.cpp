#include "cli/ResourceFolder.hpp"

#include <system_error>

namespace brindle {

std::filesystem::path resourceFolder() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return program.parent_path().parent_path() / "share" / "brindle";
}

} // namespace brindle
