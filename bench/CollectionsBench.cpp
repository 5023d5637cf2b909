#include "Brindle/library/CollectionEntityManager.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "foundation/Console.hpp"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>

namespace brindle {
namespace {

constexpr std::int64_t articlesPerFeed = 50;

/// A library of feeds with 50 articles each, one of them of every half hour back from now, every second one read; in memory but for the
/// preferences.
class CollectionsLibrary {
public:
    explicit CollectionsLibrary(std::int64_t articles) : _folder(makeFolder()) {
        Console::redirect([](std::string_view) {});
        for (std::int64_t i = 0; i < articles / articlesPerFeed; ++i) {
            const auto item =
                FeedItem::make("Feed", *URL::make("https://site" + std::to_string(i) + ".invalid/"), 30, {}, {}, _environment);
            auto& entries = item->session().feed()->entries;
            for (std::int64_t k = 0; k < articlesPerFeed; ++k) {
                const auto& entry = entries.emplace_back(std::make_shared<SyndicatedEntry>(_now));
                entry->title = "The title of article " + std::to_string(k);
                entry->dateUpdated = _now - std::chrono::minutes(30 * k);
            }
            item->syndicatedSessionDidFinishParsing(item->session());
            for (std::size_t k = 0; k < item->articles().size(); k += 2)
                item->articles()[k]->entry->setIsRead(true);
            feeds->addFeed(item, i);
        }
        defaults->registerDefaults(
            {{std::string(preference::showTodayCollectionInMenu), true}, {std::string(preference::showUnreadCollectionInMenu), true},
                {std::string(preference::showSavedArticlesCollectionInMenu), true}});
        defaults->set(preference::hideInDock, true);
    }

    ~CollectionsLibrary() {
        feeds.reset();
        Console::redirect({});
        std::filesystem::remove_all(_folder);
    }

    CollectionsLibrary(const CollectionsLibrary&) = delete;
    CollectionsLibrary& operator=(const CollectionsLibrary&) = delete;

    CollectionEntityManager makeCollections() const { return {feeds, saved, defaults, _environment.clock}; }

private:
    static std::filesystem::path makeFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "brindle-bench-XXXXXX").string();
        return ::mkdtemp(name.data());
    }

    const Date _now = SystemClock().now();
    const std::filesystem::path _folder;
    const SyndicatedSessionEnvironment _environment{std::make_shared<FixedClock>(_now), absentNetworkRoute(), nullptr};

public:
    std::shared_ptr<FeedsManager> feeds = std::make_shared<FeedsManager>(_folder, _environment, std::weak_ptr<FeedItemDelegate>());
    const std::shared_ptr<SavedArticlesManager> saved = std::make_shared<SavedArticlesManager>(_folder, _environment);
    const std::shared_ptr<UserDefaults> defaults = std::make_shared<UserDefaults>(_folder / "Preferences.plist");
};

/// What follows each parse of a feed.
void refreshCollections(benchmark::State& state) {
    const CollectionsLibrary library(state.range(0));
    CollectionEntityManager collections = library.makeCollections();
    for (auto _ : state)
        collections.refreshCollections();
    if (collections.unreadArticlesCollectionEntity->entities().size() != static_cast<std::size_t>(state.range(0) / 2))
        state.SkipWithError("articles are missing");
    state.SetComplexityN(state.range(0));
}
BENCHMARK(refreshCollections)->Arg(10'000)->Arg(30'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Complexity();

/// One read of a preference, which looks at the file.
void readPreference(benchmark::State& state) {
    const CollectionsLibrary library(0);
    for (auto _ : state)
        benchmark::DoNotOptimize(library.defaults->boolForKey(preference::hideInDock));
}
BENCHMARK(readPreference)->Unit(benchmark::kNanosecond);

/// The same within a snapshot.
void readPreferenceOfSnapshot(benchmark::State& state) {
    const CollectionsLibrary library(0);
    const UserDefaults::Snapshot snapshot(*library.defaults);
    for (auto _ : state)
        benchmark::DoNotOptimize(library.defaults->boolForKey(preference::hideInDock));
}
BENCHMARK(readPreferenceOfSnapshot)->Unit(benchmark::kNanosecond);

} // namespace
} // namespace brindle
