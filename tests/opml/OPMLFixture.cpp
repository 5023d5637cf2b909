#include "tests/opml/OPMLFixture.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "foundation/Console.hpp"
#include "tests/support/MainLoop.hpp"

#include <fstream>

namespace brindle {

OPMLTest::OPMLTest() : environment{std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr} {
    Console::redirect([this](std::string_view line) { lines.emplace_back(line); });
}

OPMLTest::~OPMLTest() {
    Console::redirect({});
}

std::shared_ptr<FeedItem> OPMLTest::makeItem(const std::string& name, std::string_view url) const {
    return FeedItem::make(name, URL::make(url).value(), FeedItem::defaultUpdateRate, {}, {}, environment);
}

std::filesystem::path OPMLTest::write(std::string_view name, std::string_view bytes) const {
    const std::filesystem::path file = folder / name;
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
}

std::string OPMLTest::opml(std::string_view body) {
    return "<?xml version=\"1.0\"?><opml version=\"1.0\"><head><title>T</title></head><body>" + std::string(body) + "</body></opml>";
}

OPMLTest::Feeds OPMLTest::readWith(FeedsOPMLReader& reader, const std::vector<std::filesystem::path>& files) {
    Feeds feeds;
    int calls = 0;
    reader.read(files, [&](const Feeds& found) {
        feeds = found;
        ++calls;
    });
    EXPECT_EQ(calls, 0) << "a read returns before it is done";
    EXPECT_TRUE(runMainLoop([&] { return calls > 0; }));
    RunLoop::main().runPending();
    EXPECT_EQ(calls, 1);
    return feeds;
}

OPMLTest::Feeds OPMLTest::read(const std::vector<std::filesystem::path>& files) {
    const auto reader = FeedsOPMLReader::make(environment);
    Feeds feeds = readWith(*reader, files);
    failures = reader->failures();
    return feeds;
}

std::string OPMLTest::outlineOf(std::string_view body) {
    return outline(read({write("one.opml", opml(body))}));
}

std::string outline(const std::vector<std::shared_ptr<Feed>>& feeds) {
    std::string text;
    for (const std::shared_ptr<Feed>& feed : feeds) {
        text += text.empty() ? "" : " ";
        if (feed->kind == Feed::Kind::separator) {
            text += "-";
            continue;
        }
        text += feed->name().empty() ? "?" : feed->name();
        if (feed->kind == Feed::Kind::group)
            text += "(" + outline(static_cast<const FeedGroup&>(*feed).feeds()) + ")";
    }
    return text;
}

} // namespace brindle
