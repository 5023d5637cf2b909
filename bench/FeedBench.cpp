#include "SyndicatedParser/Normalisation.hpp"
#include "bench/FeedRoad.hpp"
#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"

#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <new>
#include <sstream>
#include <vector>

namespace {

std::atomic<std::size_t> allocations = 0;

} // namespace

// Every allocation of the program is counted, so that a benchmark can say how many its work needs. Never inlined: g++ would see a free()
// without its malloc().
[[gnu::noinline]] void* operator new(std::size_t size) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* const memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace brindle {
namespace {

using Documents = std::vector<std::string>;

std::shared_ptr<const Clock> clock() {
    static const auto clock = std::make_shared<SystemClock>();
    return clock;
}

/// The snapshots of real sites below the corpus folder; empty when there is none.
const Documents& realFeeds() {
    static const Documents documents = [] {
        Documents read;
        const char* const corpus = std::getenv("BRINDLE_CORPUS");
        const std::filesystem::path folder = std::filesystem::path(corpus ? corpus : "") / "feeds";
        std::istringstream list(FileManager::contents(folder / "REAL.txt").value_or(""));
        for (std::string line; std::getline(list, line);) {
            if (auto bytes = FileManager::contents(folder / line))
                read.push_back(std::move(*bytes));
        }
        return read;
    }();
    return documents;
}

std::size_t sizeOf(const Documents& documents) {
    std::size_t size = 0;
    for (const std::string& document : documents)
        size += document.size();
    return size;
}

void setBytes(benchmark::State& state, std::size_t bytesEach) {
    state.SetBytesProcessed(static_cast<std::int64_t>(bytesEach) * static_cast<std::int64_t>(state.iterations()));
}

bool skipWithoutFeeds(benchmark::State& state) {
    Console::redirect([](std::string_view) {});
    if (realFeeds().empty())
        state.SkipWithError("BRINDLE_CORPUS names no folder with feeds/REAL.txt");
    return realFeeds().empty();
}

void realFeedsWholeRoad(benchmark::State& state) {
    if (skipWithoutFeeds(state))
        return;
    std::size_t entries = 0;
    const std::size_t before = allocations;
    for (auto _ : state) {
        for (const std::string& bytes : realFeeds())
            entries += bench::update(bytes, clock()).value_or(0);
    }
    setBytes(state, sizeOf(realFeeds()));
    state.counters["entries"] = benchmark::Counter(static_cast<double>(entries), benchmark::Counter::kIsRate);
    state.counters["allocations/entry"] = static_cast<double>(allocations - before) / static_cast<double>(entries);
}
BENCHMARK(realFeedsWholeRoad)->Unit(benchmark::kMillisecond);

void realFeedsDecode(benchmark::State& state) {
    if (skipWithoutFeeds(state))
        return;
    for (auto _ : state) {
        for (const std::string& bytes : realFeeds())
            benchmark::DoNotOptimize(decodeDocument(bytes));
    }
    setBytes(state, sizeOf(realFeeds()));
}
BENCHMARK(realFeedsDecode)->Unit(benchmark::kMillisecond);

void realFeedsDetectAndRewrite(benchmark::State& state) {
    if (skipWithoutFeeds(state))
        return;
    for (auto _ : state) {
        for (const std::string& bytes : realFeeds()) {
            std::string text = decodeDocument(bytes).text;
            benchmark::DoNotOptimize(detectFeedKind(text));
        }
    }
    setBytes(state, sizeOf(realFeeds()));
}
BENCHMARK(realFeedsDetectAndRewrite)->Name("realFeedsDecodeDetectAndRewrite")->Unit(benchmark::kMillisecond);

void realFeedsParse(benchmark::State& state) {
    if (skipWithoutFeeds(state))
        return;
    std::vector<std::pair<SyndicatedFeedKind, DecodedDocument>> detected;
    for (const std::string& bytes : realFeeds()) {
        DecodedDocument document = decodeDocument(bytes);
        const SyndicatedFeedKind kind = detectFeedKind(document.text);
        detected.emplace_back(kind, std::move(document));
    }
    for (auto _ : state) {
        for (const auto& [kind, document] : detected)
            benchmark::DoNotOptimize(bench::parse(kind, document.text, document.encoding, clock()));
    }
    // The rate is that of the fetched bytes, as for the other steps.
    setBytes(state, sizeOf(realFeeds()));
}
BENCHMARK(realFeedsParse)->Unit(benchmark::kMillisecond);

std::string generatedRSS(std::size_t size) {
    std::string text = "<?xml version=\"1.0\"?><rss version=\"2.0\"><channel><title>T</title>";
    for (int i = 0; text.size() < size; ++i) {
        const std::string number = std::to_string(i);
        text += "<item><title>Article " + number + " &amp; more</title><link>https://a.example/" + number + "</link><guid>" + number +
                "</guid><pubDate>Mon, 01 Jun 2020 10:00:00 GMT</pubDate><description><![CDATA[<p>A paragraph with <a "
                "href=\"https://a.example/\">a"
                " link</a> &amp; some words, so that it is about as long as they are.</p>]]></description><category>K</category></item>\n";
    }
    return text + "</channel></rss>";
}

void generatedRSSWholeRoad(benchmark::State& state) {
    const std::string bytes = generatedRSS(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::update(bytes, clock()));
    setBytes(state, bytes.size());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(generatedRSSWholeRoad)->RangeMultiplier(4)->Range(64 << 10, 16 << 20)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);

std::string flood(std::string_view part, std::int64_t size) {
    std::string text;
    while (text.size() < static_cast<std::size_t>(size))
        text += part;
    return text;
}

void hostileDocument(benchmark::State& state, std::string_view part) {
    Console::redirect([](std::string_view) {});
    const std::string bytes = "<rss><channel><item><description>" + flood(part, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::update(bytes, clock()));
    setBytes(state, bytes.size());
    state.SetComplexityN(state.range(0));
}

void hostileTags(benchmark::State& state, std::string_view part) {
    const std::string text = flood(part, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(removingHTMLTags(text));
    setBytes(state, text.size());
    state.SetComplexityN(state.range(0));
}

void differingTags(benchmark::State& state) {
    std::string text;
    for (int i = 0; text.size() < static_cast<std::size_t>(state.range(0)); ++i)
        text += "<a href=\"" + std::to_string(i) + "\">" + std::to_string(i) + "</a" + std::to_string(i) + ">";
    for (auto _ : state)
        benchmark::DoNotOptimize(removingHTMLTags(text));
    setBytes(state, text.size());
    state.SetComplexityN(state.range(0));
}

void hostileEntities(benchmark::State& state, std::string_view part) {
    const std::string text = flood(part, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(stringByRemovingHTMLEntities(text));
    setBytes(state, text.size());
    state.SetComplexityN(state.range(0));
}

void hostileSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(4)->Range(64 << 10, 4 << 20)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK_CAPTURE(hostileDocument, lessThan, "<")->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileDocument, openTag, "<a ")->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileDocument, nested, "<a>")->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileDocument, ampersand, "&")->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileDocument, endOfCDATA, "]]>")->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileDocument, item, "<item>")->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileTags, lessThan, "<")->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileTags, pairs, "<p></p>")->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileTags, openTag, "<a ")->Apply(hostileSizes);
BENCHMARK(differingTags)->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileEntities, ampersand, "&")->Apply(hostileSizes);
BENCHMARK_CAPTURE(hostileEntities, reference, "&amp;")->Apply(hostileSizes);

} // namespace
} // namespace brindle
