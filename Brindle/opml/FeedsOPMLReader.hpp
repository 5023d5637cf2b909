#pragma once

#include "Brindle/library/Feed.hpp"
#include "Brindle/opml/OPMLEvent.hpp"
#include "Brindle/opml/OPMLParser.hpp"
#include "SyndicatedParser/SyndicatedSession.hpp"
#include "foundation/DispatchQueue.hpp"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

class FeedGroup;

/// Makes feeds and groups of OPML files. It reads structure only: no feed is fetched, tested or started, and none has a delegate.
///
/// Made for one import. Kept as is: what a file that broke off left open stays open for the files behind it and for the next read: their
/// entries go into the group that was open, even where that is in the library by then.
///
/// Thread: main. The files are read and parsed on a queue, which holds the reader until its completion was called.
class FeedsOPMLReader : public std::enable_shared_from_this<FeedsOPMLReader> {
public:
    using Feeds = std::vector<std::shared_ptr<Feed>>;
    using CompletionHandler = std::function<void(const Feeds&)>;
    /// Gives a file's bytes, or why there are none. Called on the queue.
    using Contents = std::function<tl::expected<std::string, std::string>(const std::filesystem::path&)>;

    /// A file that did not give all it should.
    struct Failure {
        std::filesystem::path file;
        bool wasRead = false; ///< true: it is no well-formed XML; what stood before the fault was taken. False: it could not be read
        std::string message;
    };

    /// `environment` is what the feeds' sessions get.
    static std::shared_ptr<FeedsOPMLReader> make(SyndicatedSessionEnvironment environment);
    static std::shared_ptr<FeedsOPMLReader> make(SyndicatedSessionEnvironment environment, Contents contents);

    /// Reads the files one after another and returns at once. `completion` is called on the main queue, once, with the top level of all
    /// that was read, in reading order; it may be empty. A file that is no well-formed XML prints a line, one that can't be read nothing.
    /// Not to be called before an earlier read has completed.
    void read(std::vector<std::filesystem::path> files, CompletionHandler completion);

    /// Of the latest read, in reading order; complete when `completion` is called.
    const std::vector<Failure>& failures() const { return _failures; }

private:
    FeedsOPMLReader(SyndicatedSessionEnvironment environment, Contents contents);

    std::vector<Failure> parse(const std::vector<std::filesystem::path>& files);
    void build(std::vector<OPMLEvent> events);
    void apply(OPMLFeed feed);
    void apply(OPMLGroup group);
    void apply(OPMLGroupEnd end);
    void append(const std::shared_ptr<Feed>& feed);

    const SyndicatedSessionEnvironment _environment;
    const Contents _contents;
    const DispatchQueue _queue;
    OPMLParser _parser; ///< on the queue only
    const std::shared_ptr<FeedGroup> _containerFeedGroup;
    std::shared_ptr<FeedGroup> _currentFeedGroup; ///< where entries go; null: into the container
    std::vector<Failure> _failures;
};

} // namespace brindle
