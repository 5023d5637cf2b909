#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/menu/MenuExtraManager.hpp"
#include "Brindle/shell/Preferences.hpp"
#include "foundation/Console.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"
#include "tests/fakes/ApplicationFake.hpp"
#include "tests/fakes/StatusItemFake.hpp"

#include <benchmark/benchmark.h>

namespace brindle {
namespace {

constexpr int articlesPerFeed = 30;

class SilentDockTile : public DockTile {
public:
    void setBadgeLabel(const std::optional<std::string>& label) override { benchmark::DoNotOptimize(label); }
};

/// A library of feeds in groups of ten with 30 articles each, a third of them unread, and its menu.
class Surface {
public:
    explicit Surface(std::int64_t feeds) {
        Console::redirect([](std::string_view) {});
        registerDefaults(*_defaults);
        std::shared_ptr<FeedGroup> group;
        for (std::int64_t i = 0; i < feeds; ++i) {
            if (i % 10 == 0) {
                group = FeedGroup::make("Group " + std::to_string(i));
                _manager->addFeed(group, std::ssize(_manager->feeds));
            }
            const std::string site = "https://site" + std::to_string(i) + ".invalid/";
            const auto item = FeedItem::make("Feed " + std::to_string(i), *URL::make(site), 30, {}, {}, _environment);
            for (int k = 0; k < articlesPerFeed; ++k)
                item->articleStateCache.emplace(title(k) + "&" + site + std::to_string(k), k % 3 == 0 ? 0 : 1);
            _manager->addFeed(item, -1, group);
        }
        _collections = std::make_shared<CollectionEntityManager>(_manager, _saved, _defaults, _environment.clock);
        _menuExtraManager = MenuExtraManager::make({_manager, _collections, _defaults, std::make_shared<StatusItemFake>(),
            std::make_shared<SilentDockTile>(), std::make_shared<ApplicationFake>(), _applicationDelegate, nullptr, statusIconName});
    }
    ~Surface() {
        _menuExtraManager.reset();
        _collections.reset();
        _manager->feeds.clear();
        Console::redirect({});
    }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    FeedsManager& manager() { return *_manager; }

    void parse(FeedItem& item) const {
        auto& entries = item.session().feed()->entries;
        entries.clear();
        for (int k = 0; k < articlesPerFeed; ++k) {
            const auto& entry = entries.emplace_back(std::make_shared<SyndicatedEntry>(_environment.clock->now()));
            entry->title = title(k);
            entry->links.emplace_back();
            entry->links.back().url = URL::make(item.url().absoluteString() + std::to_string(k));
        }
        item.syndicatedSessionDidFinishParsing(item.session());
    }

    void refreshCollections() { _collections->refreshCollections(); }
    void updateMenu() {
        _menuExtraManager->updateMenu();
        RunLoop::main().runPending();
    }

private:
    static std::string title(int number) { return "The title of an article of usual length, number " + std::to_string(number); }

    SyndicatedSessionEnvironment _environment{std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
    std::shared_ptr<UserDefaults> _defaults = std::make_shared<UserDefaults>("/nonexistent/Preferences.plist");
    std::shared_ptr<FeedsManager> _manager =
        std::make_shared<FeedsManager>("/nonexistent", _environment, std::weak_ptr<FeedItemDelegate>());
    std::shared_ptr<SavedArticlesManager> _saved = std::make_shared<SavedArticlesManager>("/nonexistent", _environment);
    std::shared_ptr<ActionHandlerFake> _applicationDelegate = std::make_shared<ActionHandlerFake>();
    std::shared_ptr<CollectionEntityManager> _collections;
    std::shared_ptr<MenuExtraManager> _menuExtraManager;
};

/// One rebuild with all three collections: the feeds' articles, those of today (all), the unread ones.
void rebuildMenu(benchmark::State& state) {
    Surface surface(state.range(0));
    for (const auto& item : FeedsManager::items(surface.manager().feeds))
        surface.parse(*item);
    surface.refreshCollections();
    surface.updateMenu();
    for (auto _ : state)
        surface.updateMenu();
    state.SetComplexityN(state.range(0));
    state.SetItemsProcessed(state.iterations() * state.range(0) * articlesPerFeed);
}
BENCHMARK(rebuildMenu)->Arg(10)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond)->Complexity();

/// The run in which all feeds finish one after another, the menu rebuilt for each.
void finishAllFeeds(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto surface = std::make_unique<Surface>(state.range(0));
        state.ResumeTiming();
        for (const auto& item : FeedsManager::items(surface->manager().feeds)) {
            surface->parse(*item);
            surface->refreshCollections();
            surface->updateMenu();
        }
        state.PauseTiming();
        surface.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(finishAllFeeds)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(1);

void rebuildDeepMenu(benchmark::State& state) {
    Surface surface(0);
    std::shared_ptr<Feed> top = FeedGroup::make("Deep");
    for (std::int64_t i = 1; i < state.range(0); ++i) {
        const auto group = FeedGroup::make("Deep");
        group->add(top, 0);
        top = group;
    }
    surface.manager().addFeed(top, 0);
    for (auto _ : state)
        surface.updateMenu();
    state.SetComplexityN(state.range(0));
}
BENCHMARK(rebuildDeepMenu)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Complexity();

} // namespace
} // namespace brindle
