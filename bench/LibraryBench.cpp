#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/Console.hpp"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>

namespace brindle {
namespace {

constexpr int articlesPerFeed = 35;

/// A library of feeds in groups of ten, each with the document and the table of 35 articles, in a folder of its own.
class Library {
public:
    explicit Library(int feeds) : _folder(makeFolder()), _manager(makeManager()) {
        Console::redirect([](std::string_view) {});
        _manager->createSupportDirectories();
        std::shared_ptr<FeedGroup> group;
        for (int i = 0; i < feeds; ++i) {
            if (i % 10 == 0) {
                group = FeedGroup::make("Group " + std::to_string(i));
                _manager->addFeed(group, std::ssize(_manager->feeds));
            }
            const std::string site = "https://site" + std::to_string(i) + ".invalid/";
            const auto item = FeedItem::make("Feed " + std::to_string(i), *URL::make(site), 30, {}, {}, _environment);
            item->data = std::string(20'000, 'x');
            for (int k = 0; k < articlesPerFeed; ++k)
                item->articleStateCache.emplace("The title of article " + std::to_string(k) + "&" + site + std::to_string(k), k % 2);
            _manager->addFeed(item, -1, group);
        }
    }

    ~Library() {
        _manager.reset();
        Console::redirect({});
        std::filesystem::remove_all(_folder);
    }

    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    std::unique_ptr<FeedsManager> makeManager() const { return std::make_unique<FeedsManager>(_folder, _environment, _nobody); }
    FeedsManager& manager() const { return *_manager; }

    /// Gives each feed a parsed document whose articles its table knows or does not.
    void mergeAll(bool areKnown) const {
        for (const auto& item : FeedsManager::items(_manager->feeds)) {
            SyndicatedFeed& feed = *item->session().feed();
            feed.entries.clear();
            for (int k = 0; k < articlesPerFeed; ++k) {
                const auto& entry = feed.entries.emplace_back(std::make_shared<SyndicatedEntry>(Date()));
                entry->title = (areKnown ? "The title of article " : "Another title of article ") + std::to_string(k);
                entry->links.emplace_back();
                entry->links.back().url = URL::make(item->url().absoluteString() + std::to_string(k));
            }
            item->syndicatedSessionDidFinishParsing(item->session());
        }
    }

private:
    static std::filesystem::path makeFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "brindle-bench-XXXXXX").string();
        return ::mkdtemp(name.data());
    }

    std::filesystem::path _folder;
    SyndicatedSessionEnvironment _environment{std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
    std::weak_ptr<FeedItemDelegate> _nobody;
    std::unique_ptr<FeedsManager> _manager;
};

void saveLibrary(benchmark::State& state) {
    const Library library(static_cast<int>(state.range(0)));
    for (auto _ : state)
        library.manager().save();
    state.SetComplexityN(state.range(0));
}
BENCHMARK(saveLibrary)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime()->Complexity();

void loadLibrary(benchmark::State& state) {
    const Library library(static_cast<int>(state.range(0)));
    library.manager().save();
    for (auto _ : state) {
        auto manager = library.makeManager();
        manager->load();
        if (FeedsManager::items(manager->feeds).size() != static_cast<std::size_t>(state.range(0)))
            state.SkipWithError("feeds are missing");
        state.PauseTiming();
        manager.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(loadLibrary)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime()->Complexity();

/// The merge of 35,000 articles in 1,000 feeds, all of them known.
void mergeArticles(benchmark::State& state) {
    const Library library(1000);
    library.mergeAll(true);
    const auto items = FeedsManager::items(library.manager().feeds);
    for (auto _ : state) {
        for (const auto& item : items)
            item->syndicatedSessionDidFinishParsing(item->session());
    }
    state.SetItemsProcessed(state.iterations() * 1000 * articlesPerFeed);
}
BENCHMARK(mergeArticles)->Unit(benchmark::kMillisecond);

/// The same, none of them known.
void mergeNewArticles(benchmark::State& state) {
    const Library library(1000);
    library.mergeAll(false);
    const auto items = FeedsManager::items(library.manager().feeds);
    for (auto _ : state) {
        state.PauseTiming();
        for (const auto& item : items)
            item->articleStateCache.clear();
        state.ResumeTiming();
        for (const auto& item : items)
            item->syndicatedSessionDidFinishParsing(item->session());
    }
    state.SetItemsProcessed(state.iterations() * 1000 * articlesPerFeed);
}
BENCHMARK(mergeNewArticles)->Unit(benchmark::kMillisecond);

void walkArticles(benchmark::State& state) {
    const Library library(static_cast<int>(state.range(0)));
    library.mergeAll(true);
    for (auto _ : state)
        benchmark::DoNotOptimize(library.manager().articles(ArticleStateFilter::unread));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(walkArticles)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMicrosecond)->Complexity();

void destroyDeepTree(benchmark::State& state) {
    Console::redirect([](std::string_view) {});
    for (auto _ : state) {
        state.PauseTiming();
        std::shared_ptr<Feed> top = FeedGroup::make("Deep");
        for (std::int64_t i = 1; i < state.range(0); ++i) {
            const auto group = FeedGroup::make("Deep");
            group->add(top, 0);
            top = group;
        }
        state.ResumeTiming();
        top.reset();
    }
    Console::redirect({});
    state.SetComplexityN(state.range(0));
}
BENCHMARK(destroyDeepTree)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond)->Complexity();

} // namespace
} // namespace brindle
