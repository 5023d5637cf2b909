#include "Brindle/library/FeedsManager.hpp"
#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"
#include "tests/library/LibraryFixture.hpp"

#include <chrono>
#include <csignal>
#include <functional>
#include <iostream>
#include <random>
#include <set>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

namespace brindle {
namespace {

constexpr int feedCount = 24;
constexpr int kills = 200;

/// Two libraries with the same feeds, told apart by everything that is stored of them.
class SaveCrashTest : public LibraryTest {
protected:
    static std::string uuidText(int feed) { return "00000000-0000-4000-8000-0000000000" + std::to_string(10 + feed); }

    static std::string content(char version, int feed, std::size_t size) { return std::string(size, version) + std::to_string(feed); }

    std::unique_ptr<FeedsManager> library(char version) {
        auto manager = makeManager();
        for (int i = 0; i < feedCount; ++i) {
            const auto item = makeItem(content(version, i, 1));
            item->uuid = *UUID::make(uuidText(i));
            item->data = content(version, i, version == 'A' ? 5'000 : 90'000);
            item->articleStateCache = {{content(version, i, 20), 1}};
            item->setFeedImageData(content(version, i, version == 'A' ? 900 : 300));
            manager->addFeed(item, i);
        }
        return manager;
    }

    enum Outcome { wholeAndUndisturbed = 0, broken = 1, wholeAfterInterruption = 2 };

    /// What a fresh start finds after a kill.
    Outcome outcome() {
        std::set<char> versions;
        bool isInterrupted = false;
        for (const std::string name : {"Data", "Caches", "Images"}) {
            for (const auto& entry : std::filesystem::directory_iterator(folder / name))
                isInterrupted |= entry.path().filename().native().starts_with('.');
        }
        const auto manager = loadedManager();
        const auto items = FeedsManager::items(manager->feeds);
        EXPECT_EQ(items.size(), std::size_t{feedCount});
        for (std::size_t i = 0; i < items.size(); ++i) {
            const FeedItem& item = *items[i];
            const int feed = static_cast<int>(i);
            EXPECT_EQ(item.uuid.uuidString(), uuidText(feed));
            EXPECT_EQ(item.name()[0], items[0]->name()[0]) << "the tree is of two libraries";
            EXPECT_EQ(item.name(), content(item.name()[0], feed, 1));
            EXPECT_TRUE(item.data == content('A', feed, 5'000) || item.data == content('B', feed, 90'000)) << feed;
            const auto image = item.feedImageData().value_or(std::string());
            EXPECT_TRUE(image == content('A', feed, 900) || image == content('B', feed, 300)) << feed;
            const auto& states = item.articleStateCache;
            EXPECT_TRUE(states.size() == 1 && (states.count(content('A', feed, 20)) == 1 || states.count(content('B', feed, 20)) == 1))
                << feed;
            versions.insert({item.name()[0], item.data.bytes()[0], image[0], states.begin()->first[0]});
        }
        if (HasFailure())
            return broken;
        return isInterrupted || versions.size() > 1 ? wholeAfterInterruption : wholeAndUndisturbed;
    }

    /// Runs `work` in a process that shares nothing with this one but its files; gives its process id.
    static pid_t start(const std::function<int()>& work) {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(work());
        return child;
    }

    static int exitStatus(pid_t child) {
        int status = 0;
        return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    /// Lets the kernel kill this process when it has used that much more of the processor: a moment that a busy machine does not move.
    static void beKilledAfter(std::chrono::microseconds processorTime) {
        sigevent event{};
        event.sigev_notify = SIGEV_SIGNAL;
        event.sigev_signo = SIGKILL;
        timer_t timer{};
        const itimerspec moment{{0, 0}, {0, static_cast<long>(std::chrono::nanoseconds(processorTime).count())}};
        if (::timer_create(CLOCK_PROCESS_CPUTIME_ID, &event, &timer) != 0 || ::timer_settime(timer, 0, &moment, nullptr) != 0)
            ::_exit(1);
    }

    [[noreturn]] void saveUntilKilled(std::chrono::microseconds processorTime) {
        const auto a = library('A'), b = library('B');
        beKilledAfter(processorTime);
        for (;;) {
            b->save();
            a->save();
        }
    }
};

/// All of it happens in a process that starts no thread of its own, so that it can divide itself.
TEST_F(SaveCrashTest, LeavesEveryFileOldOrNewWhereverASaveIsKilled) {
    if (!isChild()) {
        EXPECT_TRUE(runThisTestInChild());
        return;
    }
    Console::redirect([](std::string_view) {});
    ASSERT_EQ(exitStatus(start([&] { return library('A')->save(), 0; })), 0);
    std::mt19937 random(19810412);
    int interrupted = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const std::chrono::microseconds moment(1 + random() % 40'000);
        ASSERT_EQ(exitStatus(start([&]() -> int { saveUntilKilled(moment); })), -1) << "it was not killed";
        const int result = exitStatus(start([&] { return static_cast<int>(outcome()); }));
        ASSERT_TRUE(result == wholeAndUndisturbed || result == wholeAfterInterruption) << "kill " << kill << ": " << result;
        interrupted += result == wholeAfterInterruption ? 1 : 0;
    }
    std::cout << interrupted << " of " << kills << " kills came inside a save\n";
    EXPECT_GT(interrupted, 0) << "no kill came inside a save";
    ASSERT_EQ(exitStatus(start([&] { return library('A')->save(), 0; })), 0);
    EXPECT_EQ(exitStatus(start([&] { return static_cast<int>(outcome()); })), static_cast<int>(wholeAndUndisturbed)) << "leftovers stay";
    removeFolder();
    endChild();
}

} // namespace
} // namespace brindle
