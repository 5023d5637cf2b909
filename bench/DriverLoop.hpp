#pragma once

#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The loop of the programs that take part in comparisons with others:
//
//     PROGRAM SECONDS|--failed LIST
//
// LIST has the path of one document a line. All are read first and parsed once unmeasured; then whole passes follow until SECONDS of
// processor time are spent, at least two. The result is one line: docs bytes passes wall_s cpu_s entries failed (the last two of one pass).
// With --failed: the paths of the documents that failed.

namespace brindle::bench {

/// Reads one document. The number of its entries, or of what else there is to count; nothing for a failure.
using ParseDocument = std::function<std::optional<std::size_t>(const std::string& bytes)>;

struct ListedDocument {
    std::string path;
    std::string bytes;
};

inline std::optional<std::vector<ListedDocument>> documentsOf(const std::string& list) {
    std::ifstream paths(list);
    if (!paths)
        return std::nullopt;
    std::vector<ListedDocument> documents;
    for (std::string path; std::getline(paths, path);) {
        if (path.empty())
            continue;
        std::ifstream file(path, std::ios::binary);
        if (!file)
            return std::nullopt;
        documents.push_back({path, {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()}});
    }
    return documents;
}

inline std::optional<double> secondsOf(std::string_view text) {
    double seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional(seconds) : std::nullopt;
}

inline double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

inline void measure(const std::vector<ListedDocument>& documents, double seconds, const ParseDocument& parse) {
    std::size_t bytes = 0;
    std::size_t entries = 0;
    std::size_t failed = 0;
    for (const ListedDocument& document : documents) {
        const std::optional<std::size_t> count = parse(document.bytes);
        bytes += document.bytes.size();
        entries += count.value_or(0);
        failed += count ? 0 : 1;
    }
    const auto wallStart = std::chrono::steady_clock::now();
    const double start = processorSeconds();
    int passes = 0;
    double spent = 0;
    while (spent < seconds || passes < 2) {
        for (const ListedDocument& document : documents)
            parse(document.bytes);
        ++passes;
        spent = processorSeconds() - start;
    }
    const double wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - wallStart).count();
    std::printf("%zu %zu %d %.6f %.6f %zu %zu\n", documents.size(), bytes, passes, wall, spent, entries, failed);
}

/// The whole of such a program: its exit status.
inline int runDriver(int argc, char** argv, std::string_view name, const ParseDocument& parse) {
    const std::string mode = argc == 3 ? argv[1] : "";
    const std::optional<double> seconds = secondsOf(mode);
    if (!seconds && mode != "--failed") {
        std::cerr << "usage: " << name << " SECONDS|--failed LIST\n";
        return 2;
    }
    const auto documents = documentsOf(argv[2]);
    if (!documents) {
        std::cerr << name << ": " << argv[2] << " or a document in it can't be read\n";
        return 1;
    }
    if (seconds) {
        measure(*documents, *seconds, parse);
        return 0;
    }
    for (const ListedDocument& document : *documents) {
        if (!parse(document.bytes))
            std::cout << document.path << "\n";
    }
    return 0;
}

} // namespace brindle::bench
