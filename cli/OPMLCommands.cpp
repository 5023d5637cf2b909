#include "cli/OPMLCommands.hpp"

#include "Brindle/opml/FeedsOPMLReader.hpp"
#include "Brindle/opml/FeedsOPMLWriter.hpp"
#include "Brindle/shell/LibraryHelper.hpp"
#include "cli/FeedNode.hpp"
#include "cli/Input.hpp"
#include "cli/Library.hpp"
#include "foundation/RunLoop.hpp"

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

namespace {

constexpr std::string_view standardOutputTitle = "Brindle feeds";

tl::expected<std::string, std::string> contents(const std::filesystem::path& file) {
    return readInput(file.string()).map_error([](const CommandError& error) { return error.message; });
}

std::string message(const FeedsOPMLReader::Failure& failure) {
    if (!failure.wasRead)
        return failure.message;
    return failure.file.string() + " is no well-formed XML, what stands before the fault was taken: " + failure.message;
}

FeedsManager::Feeds read(FeedsOPMLReader& reader, const std::vector<std::string>& files) {
    FeedsManager::Feeds feeds;
    bool isRead = false;
    reader.read({files.begin(), files.end()}, [&](const FeedsOPMLReader::Feeds& found) {
        feeds = found;
        isRead = true;
    });
    // Reading always ends, unless standard input does not; then a person ends it.
    while (!isRead)
        RunLoop::main().runUntil([&] { return isRead; }, std::chrono::hours(24));
    return feeds;
}

CommandResult importFiles(const CommandContext& context) {
    const auto library = Library::open(context.settings, Library::Purpose::writing, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    FeedsManager& manager = (*library)->manager();
    const auto reader = FeedsOPMLReader::make(manager.environment(), contents);
    const FeedsManager::Feeds feeds = read(*reader, context.arguments.plain);
    for (const FeedsOPMLReader::Failure& failure : reader->failures())
        context.standardError.message(message(failure));
    const bool replaces = context.arguments.has("replace");
    LibraryHelper::importFeeds(manager, feeds, replaces ? LibraryHelper::ImportMode::replace : LibraryHelper::ImportMode::merge);
    if (const auto saved = (*library)->save(); !saved)
        return tl::unexpected(saved.error());
    if (replaces && manager.feeds.empty())
        context.standardError.message("an empty library is not stored: what was replaced comes back with the next start");
    if (context.settings.json)
        context.output.json(feedNodes(feeds));
    else
        context.output.text(feedOutline(feeds));
    return reader->failures().empty() ? ExitStatus::done : ExitStatus::failed;
}

CommandResult writeFile(const FeedsManager::Feeds& feeds, const std::filesystem::path& file, bool keepsGroups) {
    if (FeedsOPMLWriter::exportFeeds(feeds, file, keepsGroups))
        return ExitStatus::done;
    if (!FeedsOPMLWriter::document(feeds, file.stem().string(), keepsGroups))
        return failure("a name in the library, or that of the file, is not UTF-8");
    // The console says why.
    return failure("the library could not be written to " + file.string());
}

CommandResult exportFile(const CommandContext& context) {
    const auto library = Library::open(context.settings, Library::Purpose::reading, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    const FeedsManager::Feeds& feeds = (*library)->manager().feeds;
    (*library)->bringBack(feeds);
    const std::string& file = context.arguments.plain.front();
    const bool keepsGroups = !context.arguments.has("flat");
    if (file != "-")
        return writeFile(feeds, file, keepsGroups);
    const auto document = FeedsOPMLWriter::document(feeds, standardOutputTitle, keepsGroups);
    if (!document)
        return failure("a name in the library is not UTF-8");
    context.output.text(*document);
    return ExitStatus::done;
}

} // namespace

Command importCommand() {
    return {"import", "[--replace] FILE...",
        "Takes the feeds and groups of OPML files into the library. Nothing is fetched. Of a file that is no well-formed XML, what stands "
        "before the fault is taken.",
        {{"replace", "", "put them in the place of all that is in the library"}}, 1, Command::anyNumber, importFiles};
}

Command exportCommand() {
    return {"export", "[--flat] FILE", "Writes the library as an OPML file. With - for FILE the document is printed.",
        {{"flat", "", "leave the groups out, and keep what is in them"}}, 1, 1, exportFile};
}

} // namespace brindle
