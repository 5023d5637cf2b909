#include "tests/support/OwnNetwork.hpp"
#include "tests/cli/LibraryFolder.hpp"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>

namespace brindle {

namespace {

/// The next line that comes through, without its end; empty when nothing more comes.
std::string nextLine(std::FILE* stream) {
    std::string line;
    for (int character = std::fgetc(stream); character != EOF && character != '\n'; character = std::fgetc(stream))
        line += static_cast<char>(character);
    return line;
}

} // namespace

/// Calls the program in a network of its own, which begins without a route.
class OwnNetworkTest : public LibraryFolderTest {
protected:
    /// The library is stored by the tests that need one: nothing may run before the process is apart.
    void SetUp() override {}
    void storeLibrary() { LibraryFolderTest::SetUp(); }

    /// The steps of a test, and then the end of its folder, which no destructor brings where the process ends with them.
    template <typename Steps>
    auto leavingNoFolder(Steps steps) const {
        return [this, steps] {
            const int step = steps();
            std::filesystem::remove_all(folder().path());
            return step;
        };
    }
};

TEST_F(OwnNetworkTest, AddFailsWithoutARouteAndStoresNothing) {
    const auto steps = [this] {
        const CommandLineRun result = run({"--json", "add", "http://127.0.0.1:1/feed"});
        if (result.status != 1 || !result.output.empty())
            return 1;
        if (result.messages() != std::vector<std::string>{"brindle-cli: the network is not available"})
            return 2;
        return std::filesystem::exists(supportFolder() / "Feeds.brindle") ? 3 : 0;
    };
    EXPECT_HELD_APART(leavingNoFolder(steps));
}

TEST_F(OwnNetworkTest, UpdateCallsEveryFeedQueuedWithoutARoute) {
    const auto steps = [this] {
        storeLibrary();
        const CommandLineRun result = run({"--json", "update"});
        if (result.status != 1)
            return 1;
        const auto feeds = result.json();
        if (feeds.size() != 2)
            return 2;
        return std::all_of(feeds.begin(), feeds.end(), [](const auto& feed) { return feed["outcome"] == "queued"; }) ? 0 : 3;
    };
    EXPECT_HELD_APART(leavingNoFolder(steps));
}

TEST_F(OwnNetworkTest, ReachabilityPrintsALineForEachChange) {
    const auto steps = [this] {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0)
            return 1;
        outputPath = "/proc/self/fd/" + std::to_string(ends[1]);
        const CommandLineCall watch = begin({"reachability", "--watch", "60"});
        ::close(ends[1]);
        std::FILE* const lines = ::fdopen(ends[0], "r");
        if (!lines || nextLine(lines) != "-- ------- unavailable")
            return 2;
        if (!testsupport::addDefaultRoute())
            return testsupport::cannotTell;
        if (nextLine(lines) != "-R ------- wifi")
            return 3;
        if (!testsupport::ip("link set in0 down"))
            return testsupport::cannotTell;
        if (nextLine(lines) != "-- ------- unavailable")
            return 4;
        std::fclose(lines);
        ::kill(watch.process, SIGTERM);
        return end(watch).status == 128 + SIGTERM ? 0 : 5;
    };
    EXPECT_HELD_APART(leavingNoFolder(steps));
}

} // namespace brindle
