#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "tests/fakes/ClockFake.hpp"
#include "tests/fakes/FeedItemDelegateFake.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"
#include "tests/fakes/TimeSourceFake.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// An entry of a document that a test writes; without a link element where `link` is empty.
struct Item {
    std::string title;
    std::string link;
};

/// An RSS document with these entries.
std::string rss(const std::vector<Item>& items, const std::string& title = "Feed title");

/// A folder of its own, the console, the clock and the timers' time held still, and no network: with one, every session would fetch as soon
/// as the main loop runs, whether it was started or not.
class LibraryTest : public ::testing::Test {
protected:
    LibraryTest();
    ~LibraryTest() override;

    std::shared_ptr<FeedItem> makeItem(const std::string& name = "Name", const std::string& url = "http://127.0.0.1/feed.xml");
    std::unique_ptr<FeedsManager> makeManager();
    /// A manager that has loaded what the folder holds.
    std::unique_ptr<FeedsManager> loadedManager();

    /// Gives a document to the item's session and waits for the item's report, which it returns.
    FeedItemDelegateFake::Call parse(FeedItem& item, const std::string& document);
    /// Runs the main loop until the delegate has got a further call, and returns that.
    FeedItemDelegateFake::Call nextCall(std::size_t callsBefore);

    std::string file(const std::string& name) const;
    void writeFile(const std::string& name, std::string_view bytes) const;
    bool exists(const std::string& name) const { return std::filesystem::exists(folder / name); }
    /// For what ends the process, and so never reaches this object's end.
    void removeFolder() const { std::filesystem::remove_all(folder); }
    /// The console's lines since the last call.
    std::vector<std::string> takeLines();

    const TemporaryFolder temporaryFolder;
    const std::filesystem::path folder = temporaryFolder.path();
    std::shared_ptr<ClockFake> clock = std::make_shared<ClockFake>(Date(std::chrono::hours(500'000)));
    std::shared_ptr<TimeSourceFake> time = std::make_shared<TimeSourceFake>();
    std::shared_ptr<NetworkRouteFake> route = std::make_shared<NetworkRouteFake>(0);
    SyndicatedSessionEnvironment environment;
    std::shared_ptr<FeedItemDelegateFake> delegate = std::make_shared<FeedItemDelegateFake>();

private:
    void captureLines();

    std::vector<std::string> _lines;
};

/// The titles of articles, in order.
std::vector<std::string> titles(const std::vector<std::shared_ptr<FeedItemArticle>>& articles);

URL url(std::string_view text);

/// Whether this process was started by `runThisTestInChild`.
bool isChild();

/// Runs the running test in a process of its own, in which `isChild` holds and nothing else has run, with that many bytes of stack for its
/// main thread. The test's child branch ends with `endChild`. Gives whether it did, without a failure.
bool runThisTestInChild(std::optional<std::size_t> stackSize = std::nullopt);
[[noreturn]] void endChild();

} // namespace brindle
