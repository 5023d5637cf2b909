#pragma once

#include <filesystem>
#include <string_view>

namespace brindle {

/// A new folder that is gone, with all that is in it, when this object is.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return _path; }
    std::filesystem::path operator/(std::string_view name) const { return _path / name; }

private:
    std::filesystem::path _path;
};

} // namespace brindle
