#include "tests/support/Corpus.hpp"

#include "tests/support/Folders.hpp"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace brindle::testsupport {

namespace fs = std::filesystem;

std::optional<fs::path> corpus() {
    const char* folder = std::getenv("BRINDLE_CORPUS");
    std::error_code error;
    if (folder == nullptr || !fs::is_directory(folder, error))
        return std::nullopt;
    return fs::path(folder);
}

bool corpusIsMandatory() {
    const char* value = std::getenv("CI");
    return value != nullptr && std::string_view(value) == "true";
}

std::vector<fs::path> filesBelow(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, error)) {
        if (entry.is_regular_file())
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

void noteOutcomes(const std::string& name, std::string_view table) {
    const fs::path folder = fs::path(buildFolder()) / "outcomes";
    fs::create_directories(folder);
    std::ofstream(folder / (name + ".txt")) << table;
}

std::string bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        ADD_FAILURE() << "cannot read " << file;
        return {};
    }
    return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
}

} // namespace brindle::testsupport
