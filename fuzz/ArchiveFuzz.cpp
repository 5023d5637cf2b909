// The files of a library: property lists, read states, the archive of the tree and the library of the first versions.
#include "Brindle/library/ArticleStateCacheCoding.hpp"
#include "Brindle/library/LegacyLibrary.hpp"
#include "Brindle/library/LibraryArchive.hpp"
#include "foundation/Console.hpp"
#include "foundation/KeyedUnarchiver.hpp"
#include "fuzz/Fuzzing.hpp"

using namespace brindle;

namespace {

/// What was read can be written, and reads as what was written.
void throughPropertyList(std::string_view bytes) {
    const auto list = PropertyList::read(bytes);
    if (!list)
        return;
    const std::string written = list->binary();
    const auto again = PropertyList::read(written);
    fuzz::require(again.has_value() && again->binary() == written);
}

void throughStates(std::string_view bytes) {
    if (const auto states = decodeArticleStates(bytes))
        fuzz::require(decodeArticleStates(encodeArticleStates(*states)) == states);
}

void throughTree(std::string_view bytes) {
    const SyndicatedSessionEnvironment environment = {std::make_shared<FixedClock>(Date()), absentNetworkRoute(), nullptr};
    if (const auto root = LibraryArchive::unarchive(bytes, environment); root && *root)
        fuzz::require(LibraryArchive::archivedData((*root)->feeds()).has_value());
    LegacyLibrary::importInto(*FeedGroup::make("legacy"), bytes, environment);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Console::redirect([](std::string_view) {});
    const std::string_view bytes = fuzz::view(data, size);
    throughPropertyList(bytes);
    throughStates(bytes);
    throughTree(bytes);
    return 0;
}
