#include "bench/FeedRoad.hpp"
#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

// The road of one update as a program of its own, for comparisons with other readers:
//
//     ParseDriver SECONDS|--failed LIST
//
// LIST has the path of one document a line. All are read first and parsed once unmeasured; then whole passes follow until SECONDS of
// processor time are spent, at least two. The result is one line: docs bytes passes wall_s cpu_s entries failed (the last two of one pass).
// With --failed: the paths of the documents that gave no feed.

namespace {

using namespace brindle;

struct Document {
    std::string path;
    std::string bytes;
};

std::optional<std::vector<Document>> documentsOf(const std::string& list) {
    const auto paths = FileManager::contents(list);
    if (!paths)
        return std::nullopt;
    std::vector<Document> documents;
    std::istringstream lines(*paths);
    for (std::string path; std::getline(lines, path);) {
        if (path.empty())
            continue;
        auto bytes = FileManager::contents(path);
        if (!bytes)
            return std::nullopt;
        documents.push_back({path, std::move(*bytes)});
    }
    return documents;
}

std::optional<double> secondsOf(std::string_view text) {
    double seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional(seconds) : std::nullopt;
}

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void measure(const std::vector<Document>& documents, double seconds, const std::shared_ptr<const Clock>& clock) {
    std::size_t bytes = 0;
    std::size_t entries = 0;
    std::size_t failed = 0;
    for (const Document& document : documents) {
        const std::optional<std::size_t> count = bench::update(document.bytes, clock);
        bytes += document.bytes.size();
        entries += count.value_or(0);
        failed += count ? 0 : 1;
    }
    const auto wallStart = std::chrono::steady_clock::now();
    const double start = processorSeconds();
    int passes = 0;
    double spent = 0;
    while (spent < seconds || passes < 2) {
        for (const Document& document : documents)
            bench::update(document.bytes, clock);
        ++passes;
        spent = processorSeconds() - start;
    }
    const double wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - wallStart).count();
    std::printf("%zu %zu %d %.6f %.6f %zu %zu\n", documents.size(), bytes, passes, wall, spent, entries, failed);
}

} // namespace

int main(int argc, char** argv) {
    const std::string mode = argc == 3 ? argv[1] : "";
    const std::optional<double> seconds = secondsOf(mode);
    if (!seconds && mode != "--failed") {
        std::cerr << "usage: ParseDriver SECONDS|--failed LIST\n";
        return 2;
    }
    const auto documents = documentsOf(argv[2]);
    if (!documents) {
        std::cerr << "ParseDriver: " << argv[2] << " or a document in it can't be read\n";
        return 1;
    }
    Console::redirect([](std::string_view) {});
    const auto clock = std::make_shared<SystemClock>();
    if (seconds) {
        measure(*documents, *seconds, clock);
        return 0;
    }
    for (const Document& document : *documents) {
        if (!bench::update(document.bytes, clock))
            std::cout << document.path << "\n";
    }
    return 0;
}
