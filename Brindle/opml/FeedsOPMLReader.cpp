#include "Brindle/opml/FeedsOPMLReader.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"
#include "foundation/RunLoop.hpp"

#include <iterator>
#include <utility>

namespace brindle {

namespace fs = std::filesystem;

namespace {

tl::expected<std::string, std::string> fileContents(const fs::path& file) {
    return FileManager::contents(file).map_error([](const FileError& error) { return error.message; });
}

} // namespace

std::shared_ptr<FeedsOPMLReader> FeedsOPMLReader::make(SyndicatedSessionEnvironment environment) {
    return make(std::move(environment), fileContents);
}

std::shared_ptr<FeedsOPMLReader> FeedsOPMLReader::make(SyndicatedSessionEnvironment environment, Contents contents) {
    return std::shared_ptr<FeedsOPMLReader>(new FeedsOPMLReader(std::move(environment), std::move(contents)));
}

FeedsOPMLReader::FeedsOPMLReader(SyndicatedSessionEnvironment environment, Contents contents)
    : _environment(std::move(environment)), _contents(std::move(contents)), _queue("feeds_opml_reader_queue"),
      _containerFeedGroup(FeedGroup::make({})) {}

void FeedsOPMLReader::read(std::vector<fs::path> files, CompletionHandler completion) {
    assertMainThread();
    _containerFeedGroup->removeAll();
    _failures.clear();
    // The feeds are the main thread's: the queue only makes values, and lets go of the reader before it is used there.
    _queue.async([self = shared_from_this(), files = std::move(files), completion = std::move(completion)]() mutable {
        std::vector<Failure> failures = self->parse(files);
        std::vector<OPMLEvent> events = self->_parser.takeEvents();
        DispatchQueue::main().async([self = std::move(self), failures = std::move(failures), events = std::move(events),
                                        completion = std::move(completion)]() mutable {
            self->_failures = std::move(failures);
            self->build(std::move(events));
            const Feeds feeds = self->_containerFeedGroup->feeds();
            completion(feeds);
        });
    });
}

std::vector<FeedsOPMLReader::Failure> FeedsOPMLReader::parse(const std::vector<fs::path>& files) {
    std::vector<Failure> failures;
    for (const fs::path& file : files) {
        auto bytes = _contents(file);
        if (!bytes) {
            failures.push_back({file, false, std::move(bytes.error())});
            continue;
        }
        if (auto parsed = _parser.parse(*bytes); !parsed) {
            Console::print("Parsing of OPML file failed: " + parsed.error());
            failures.push_back({file, true, std::move(parsed.error())});
        }
    }
    return failures;
}

void FeedsOPMLReader::build(std::vector<OPMLEvent> events) {
    for (OPMLEvent& event : events)
        std::visit([this](auto& step) { apply(std::move(step)); }, event);
}

void FeedsOPMLReader::apply(OPMLFeed feed) {
    append(FeedItem::make(std::move(feed.title), std::move(feed.url), FeedItem::defaultUpdateRate, {}, {}, _environment));
}

void FeedsOPMLReader::apply(OPMLGroup group) {
    const auto made = FeedGroup::make(std::move(group.title));
    append(made);
    _currentFeedGroup = made;
}

void FeedsOPMLReader::apply(OPMLGroupEnd) {
    // Kept as is: a group that an earlier read left open is at the top level of the library by now, where it has no parent.
    _currentFeedGroup = _currentFeedGroup->parent.lock();
}

void FeedsOPMLReader::append(const std::shared_ptr<Feed>& feed) {
    FeedGroup& group = _currentFeedGroup ? *_currentFeedGroup : *_containerFeedGroup;
    group.add(feed, std::ssize(group.feeds()));
}

} // namespace brindle
