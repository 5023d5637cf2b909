#include "Brindle/browser/ArticlePage.hpp"
#include "Brindle/browser/ArticleSearch.hpp"
#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/Console.hpp"

#include <benchmark/benchmark.h>
#include <string>

namespace brindle {
namespace {

constexpr std::int64_t articlesPerFeed = 35;

/// A library in memory with that many articles, every seventh title with a letter outside ASCII.
class Library {
public:
    explicit Library(std::int64_t articles) {
        Console::redirect([](std::string_view) {});
        for (std::int64_t i = 0; i < articles; ++i) {
            if (i % articlesPerFeed == 0)
                addFeed();
            const auto& entry = _feed->session().feed()->entries.emplace_back(std::make_shared<SyndicatedEntry>(Date()));
            entry->title = "The title of an article about something " + std::to_string(i) + (i % 7 == 0 ? " caf\u00e9" : "");
        }
        for (const auto& item : FeedsManager::items(manager.feeds))
            item->syndicatedSessionDidFinishParsing(item->session());
    }
    ~Library() {
        _feed.reset();
        manager.feeds.clear();
        Console::redirect({});
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    FeedsManager manager{{}, {std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr}, {}};

private:
    void addFeed() {
        _feed = FeedItem::make("Feed", *URL::make("https://site.invalid/"), 30, {}, {}, manager.environment());
        manager.addFeed(_feed, std::ssize(manager.feeds));
    }

    std::shared_ptr<FeedItem> _feed; ///< the last
};

/// A further keystroke of a search: all titles are folded already.
void searchKeystroke(benchmark::State& state, const char* term) {
    const Library library(state.range(0));
    ArticleSearch search;
    search.articles(library.manager, term);
    for (auto _ : state)
        benchmark::DoNotOptimize(search.articles(library.manager, term));
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(searchKeystroke, fewMatches, "ng 9999")->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK_CAPTURE(searchKeystroke, allMatch, "E")->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Complexity();

/// The first keystroke, which folds all titles.
void searchFirstKeystroke(benchmark::State& state) {
    const Library library(state.range(0));
    for (auto _ : state) {
        ArticleSearch search;
        benchmark::DoNotOptimize(search.articles(library.manager, "cafe"));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(searchFirstKeystroke)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Complexity();

/// A title that is nothing but placeholders and references.
void hostileArticlePage(benchmark::State& state) {
    std::string title;
    while (title.size() < static_cast<std::size_t>(state.range(0)))
        title += "<%content%>&amp;";
    const std::string content(static_cast<std::size_t>(state.range(0)), 'x');
    for (auto _ : state)
        benchmark::DoNotOptimize(articlePage("<%title%><%content%>", title, content));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(hostileArticlePage)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->Complexity();

} // namespace
} // namespace brindle
