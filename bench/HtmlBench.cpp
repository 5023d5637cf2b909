#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "html/Parser.hpp"

// The markup toolkit over the real feeds of the corpus, which BRINDLE_CORPUS names, and over floods that must cost no more than their size.

namespace {

using namespace brindle::html;

std::string contentsOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The real feeds in XML; none without the corpus.
const std::vector<std::string>& realFeeds() {
    static const std::vector<std::string> feeds = [] {
        std::vector<std::string> texts;
        const char* const corpus = std::getenv("BRINDLE_CORPUS");
        const std::string folder = std::string(corpus != nullptr ? corpus : ".") + "/feeds/";
        std::ifstream list(folder + "REAL.txt");
        for (std::string name; std::getline(list, name);) {
            if (!name.empty() && !name.ends_with(".json")) {
                texts.push_back(contentsOf(folder + name));
            }
        }
        return texts;
    }();
    return feeds;
}

std::unique_ptr<Document> build(std::string text) {
    Parser parser = Parser::xmlParser();
    return parse(std::move(text), "", parser);
}

std::int64_t totalSize() {
    std::size_t size = 0;
    for (const std::string& feed : realFeeds()) {
        size += feed.size();
    }
    return static_cast<std::int64_t>(size);
}

bool skipWithoutFeeds(benchmark::State& state) {
    if (realFeeds().empty()) {
        state.SkipWithError("BRINDLE_CORPUS names no corpus");
        return true;
    }
    return false;
}

void buildRealFeeds(benchmark::State& state) {
    if (skipWithoutFeeds(state)) {
        return;
    }
    for (auto _ : state) {
        for (const std::string& feed : realFeeds()) {
            benchmark::DoNotOptimize(build(feed));
        }
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * totalSize());
}
BENCHMARK(buildRealFeeds)->Unit(benchmark::kMillisecond);

void serialiseRealFeeds(benchmark::State& state) {
    if (skipWithoutFeeds(state)) {
        return;
    }
    std::vector<std::unique_ptr<Document>> documents;
    for (const std::string& feed : realFeeds()) {
        documents.push_back(build(feed));
    }
    for (auto _ : state) {
        for (const auto& document : documents) {
            benchmark::DoNotOptimize(document->outerHtml());
        }
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * totalSize());
}
BENCHMARK(serialiseRealFeeds)->Unit(benchmark::kMillisecond);

void rewriteRealFeeds(benchmark::State& state) {
    if (skipWithoutFeeds(state)) {
        return;
    }
    for (auto _ : state) {
        for (const std::string& feed : realFeeds()) {
            benchmark::DoNotOptimize(build(feed)->outerHtml());
        }
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * totalSize());
}
BENCHMARK(rewriteRealFeeds)->Unit(benchmark::kMillisecond);

void rewriteFlood(benchmark::State& state, std::string_view piece) {
    const auto size = static_cast<std::size_t>(state.range(0));
    std::string text;
    text.reserve(size);
    while (text.size() + piece.size() <= size) {
        text += piece;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(build(text)->outerHtml());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
    state.SetComplexityN(state.range(0));
}

void overSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(4)->Range(std::int64_t{64} << 10, std::int64_t{4} << 20)->Complexity(benchmark::oN);
}

BENCHMARK_CAPTURE(rewriteFlood, lessThan, "<")->Apply(overSizes);
BENCHMARK_CAPTURE(rewriteFlood, unclosedTags, "<a ")->Apply(overSizes);
BENCHMARK_CAPTURE(rewriteFlood, nestedElements, "<n>")->Apply(overSizes);
BENCHMARK_CAPTURE(rewriteFlood, ampersands, "&")->Apply(overSizes);
BENCHMARK_CAPTURE(rewriteFlood, references, "&lt;")->Apply(overSizes);
BENCHMARK_CAPTURE(rewriteFlood, sectionEnds, "]]>")->Apply(overSizes);
BENCHMARK_CAPTURE(rewriteFlood, emptySections, "<![CDATA[]]>")->Apply(overSizes);
BENCHMARK_CAPTURE(rewriteFlood, unmatchedEndTags, "<a></b>")->Apply(overSizes);
BENCHMARK_CAPTURE(rewriteFlood, openComments, "<!--")->Apply(overSizes);
BENCHMARK_CAPTURE(rewriteFlood, openSubsets, "<!DOCTYPE a [")->Apply(overSizes);

} // namespace
