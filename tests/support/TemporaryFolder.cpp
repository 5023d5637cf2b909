#include "tests/support/TemporaryFolder.hpp"

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

namespace brindle {

TemporaryFolder::TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "brindle-test-XXXXXX").string();
    if (!::mkdtemp(name.data()))
        throw std::runtime_error("no temporary folder");
    _path = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(_path, ignored);
}

} // namespace brindle
