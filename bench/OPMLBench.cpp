#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/opml/FeedsOPMLReader.hpp"
#include "Brindle/opml/FeedsOPMLWriter.hpp"
#include "foundation/Console.hpp"
#include "foundation/RunLoop.hpp"

#include <benchmark/benchmark.h>
#include <chrono>
#include <iterator>

namespace brindle {
namespace {

using Feeds = FeedsOPMLReader::Feeds;

constexpr int feedsPerGroup = 50;

const SyndicatedSessionEnvironment& environment() {
    static const SyndicatedSessionEnvironment environment{std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
    return environment;
}

Feeds makeFeeds(std::int64_t count) {
    Feeds feeds;
    for (std::int64_t i = 0; i < count; ++i) {
        if (i % feedsPerGroup == 0)
            feeds.push_back(FeedGroup::make("Group " + std::to_string(i)));
        auto& group = static_cast<FeedGroup&>(*feeds.back());
        const std::string number = std::to_string(i);
        auto url = URL::make("https://site" + number + ".invalid/feeds/articles.xml");
        group.add(FeedItem::make("The articles of site " + number, *std::move(url), 30, {}, {}, environment()), std::ssize(group.feeds()));
    }
    return feeds;
}

/// The document of so many feeds in groups.
std::string makeDocument(std::int64_t count) {
    std::string text = "<opml version=\"2.0\"><body>\n<outline>\n";
    for (std::int64_t i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        if (i % feedsPerGroup == 0)
            text += "</outline>\n<outline title=\"Group " + number + "\">\n";
        text += "<outline text=\"The articles of site " + number + "\" htmlUrl=\"https://site" + number +
                ".invalid/\" xmlUrl=\"https://site" + number + ".invalid/feeds/articles.xml\" type=\"rss\"/>\n";
    }
    return text + "</outline>\n</body></opml>\n";
}

void setCostPerFeed(benchmark::State& state) {
    state.SetComplexityN(state.range(0));
    state.counters["perFeed"] = benchmark::Counter(
        static_cast<double>(state.range(0)), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// The outlines of a document, without a tree.
void parseOPML(benchmark::State& state) {
    Console::redirect([](std::string_view) {});
    const std::string document = makeDocument(state.range(0));
    for (auto _ : state) {
        OPMLParser parser;
        if (!parser.parse(document))
            state.SkipWithError("the document is no XML");
        benchmark::DoNotOptimize(parser.takeEvents());
    }
    Console::redirect({});
    setCostPerFeed(state);
}
BENCHMARK(parseOPML)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Complexity();

/// A whole read, from the bytes to the tree on the main thread.
void readOPML(benchmark::State& state) {
    Console::redirect([](std::string_view) {});
    const std::string document = makeDocument(state.range(0));
    const auto contents = [&](const auto&) { return tl::expected<std::string, std::string>(document); };
    for (auto _ : state) {
        auto reader = FeedsOPMLReader::make(environment(), contents);
        Feeds feeds;
        reader->read({"any"}, [&](const Feeds& found) { feeds = found; });
        RunLoop::main().runUntil([&] { return !feeds.empty(); }, std::chrono::minutes(1));
        state.PauseTiming();
        reader.reset();
        feeds.clear();
        state.ResumeTiming();
    }
    Console::redirect({});
    setCostPerFeed(state);
}
BENCHMARK(readOPML)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->Complexity();

void writeOPML(benchmark::State& state) {
    Console::redirect([](std::string_view) {});
    {
        const Feeds feeds = makeFeeds(state.range(0));
        for (auto _ : state)
            benchmark::DoNotOptimize(FeedsOPMLWriter::document(feeds, "Feeds", true));
    }
    Console::redirect({});
    setCostPerFeed(state);
}
BENCHMARK(writeOPML)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Complexity();

} // namespace
} // namespace brindle
