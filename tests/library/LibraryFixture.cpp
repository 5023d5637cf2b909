#include "tests/library/LibraryFixture.hpp"

#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/support/MainLoop.hpp"

#include <cstdlib>
#include <fstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace brindle {

namespace {

constexpr const char* childVariable = "BRINDLE_TEST_CHILD";
constexpr int childDone = 42;

} // namespace

std::string rss(const std::vector<Item>& items, const std::string& title) {
    std::string document = "<?xml version=\"1.0\"?><rss version=\"2.0\"><channel><title>" + title + "</title>";
    for (const Item& item : items) {
        document += "<item><title>" + item.title + "</title>";
        if (!item.link.empty())
            document += "<link>" + item.link + "</link>";
        document += "</item>";
    }
    return document + "</channel></rss>";
}

LibraryTest::LibraryTest() {
    environment.clock = clock;
    environment.route = route;
    RunLoop::main().setTimeSource(time);
    captureLines();
}

LibraryTest::~LibraryTest() {
    delegate.reset();
    Console::redirect({});
    RunLoop::main().setTimeSource(nullptr);
}

std::shared_ptr<FeedItem> LibraryTest::makeItem(const std::string& name, const std::string& address) {
    const auto item = FeedItem::make(name, url(address), FeedItem::defaultUpdateRate, {}, {}, environment);
    item->delegate = delegate;
    return item;
}

std::unique_ptr<FeedsManager> LibraryTest::makeManager() {
    auto manager = std::make_unique<FeedsManager>(folder, environment, delegate);
    manager->createSupportDirectories();
    return manager;
}

std::unique_ptr<FeedsManager> LibraryTest::loadedManager() {
    auto manager = makeManager();
    manager->load();
    return manager;
}

FeedItemDelegateFake::Call LibraryTest::parse(FeedItem& item, const std::string& document) {
    const std::size_t before = delegate->calls.size();
    item.session().start(document);
    return nextCall(before);
}

FeedItemDelegateFake::Call LibraryTest::nextCall(std::size_t callsBefore) {
    const bool came = runMainLoop([&] { return delegate->calls.size() > callsBefore; });
    EXPECT_TRUE(came) << "no report came";
    return came ? delegate->calls[callsBefore] : FeedItemDelegateFake::Call{};
}

std::string LibraryTest::file(const std::string& name) const {
    const auto bytes = FileManager::contents(folder / name);
    EXPECT_TRUE(bytes) << name;
    return bytes.value_or(std::string());
}

void LibraryTest::writeFile(const std::string& name, std::string_view bytes) const {
    std::ofstream(folder / name, std::ios::binary) << bytes;
}

void LibraryTest::captureLines() {
    Console::redirect([this](std::string_view line) { _lines.emplace_back(line); });
}

std::vector<std::string> LibraryTest::takeLines() {
    // No line comes from another thread while the console does not write here.
    Console::redirect([](std::string_view) {});
    const std::vector<std::string> lines = std::exchange(_lines, {});
    captureLines();
    return lines;
}

std::vector<std::string> titles(const std::vector<std::shared_ptr<FeedItemArticle>>& articles) {
    std::vector<std::string> found;
    for (const auto& article : articles)
        found.push_back(article->entry->title);
    return found;
}

URL url(std::string_view text) {
    return URL::make(text).value();
}

bool isChild() {
    return std::getenv(childVariable) != nullptr;
}

bool runThisTestInChild(std::optional<std::size_t> stackSize) {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string filter = std::string("--gtest_filter=") + test->test_suite_name() + "." + test->name();
    const pid_t child = ::fork();
    if (child == 0) {
        if (stackSize) {
            const rlimit limit{*stackSize, *stackSize};
            ::setrlimit(RLIMIT_STACK, &limit);
        }
        ::setenv(childVariable, "1", 1);
        // What such tests do to files is no matter of the disk, for which they would wait most of their time.
        if (std::filesystem::is_directory("/dev/shm"))
            ::setenv("TMPDIR", "/dev/shm", 1);
        ::execl("/proc/self/exe", "library_tests", filter.c_str(), static_cast<char*>(nullptr));
        ::_exit(1);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == childDone;
}

void endChild() {
    std::exit(::testing::Test::HasFailure() ? 1 : childDone);
}

} // namespace brindle
