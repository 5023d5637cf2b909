// OPML from outside: its outlines, and the tree that a reader makes of them in a read of the same file twice over, written out again.
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedTree.hpp"
#include "Brindle/opml/FeedsOPMLReader.hpp"
#include "Brindle/opml/FeedsOPMLWriter.hpp"
#include "foundation/Console.hpp"
#include "foundation/RunLoop.hpp"
#include "fuzz/Fuzzing.hpp"

#include <chrono>

using namespace brindle;

namespace {

/// A tree's feeds cost more than all the rest; those of a larger document tell nothing new.
constexpr std::size_t largestTree = 2048;

/// A group ends at most once between the beginnings of two.
void checkEvents(std::string_view bytes) {
    OPMLParser parser;
    bool isOpen = false;
    for (int pass = 0; pass < 2; ++pass) {
        static_cast<void>(parser.parse(bytes));
        for (const OPMLEvent& event : parser.takeEvents()) {
            fuzz::require(isOpen || !std::holds_alternative<OPMLGroupEnd>(event));
            if (!std::holds_alternative<OPMLFeed>(event))
                isOpen = std::holds_alternative<OPMLGroup>(event);
        }
    }
}

void checkFeeds(const FeedsOPMLReader::Feeds& feeds) {
    forEachFeed(feeds, [](const std::shared_ptr<Feed>& feed) {
        fuzz::require(feed->parent.lock() != nullptr);
        fuzz::require(feed->kind == Feed::Kind::group || !static_cast<const FeedItem&>(*feed).url().absoluteString().empty());
    });
    for (const bool keepsGroups : {false, true})
        fuzz::require(FeedsOPMLWriter::document(feeds, "T", keepsGroups).has_value());
}

void checkTree(const std::string& bytes) {
    const SyndicatedSessionEnvironment environment{std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
    bool isDone = false;
    const auto contents = [&bytes](const auto&) { return tl::expected<std::string, std::string>(bytes); };
    FeedsOPMLReader::make(environment, contents)->read({"a", "b"}, [&isDone](const FeedsOPMLReader::Feeds& feeds) {
        checkFeeds(feeds);
        isDone = true;
    });
    fuzz::require(RunLoop::main().runUntil([&isDone] { return isDone; }, std::chrono::minutes(1)));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Console::redirect([](std::string_view) {});
    const std::string bytes(fuzz::view(data, size));
    checkEvents(bytes);
    if (size <= largestTree)
        checkTree(bytes);
    return 0;
}
