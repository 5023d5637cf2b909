// The files of a library: property lists, read states, the archive of the tree, the saved articles and the library of the first versions.
#include "Brindle/library/ArticleStateCacheCoding.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/LegacyLibrary.hpp"
#include "Brindle/library/LibraryArchive.hpp"
#include "foundation/Console.hpp"
#include "foundation/KeyedArchiver.hpp"
#include "foundation/KeyedUnarchiver.hpp"
#include "fuzz/Fuzzing.hpp"

#include <algorithm>
#include <variant>

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

SyndicatedSessionEnvironment offline() {
    return {std::make_shared<FixedClock>(Date()), absentNetworkRoute(), nullptr};
}

void throughTree(std::string_view bytes) {
    const SyndicatedSessionEnvironment environment = offline();
    if (const auto root = LibraryArchive::unarchive(bytes, environment); root && *root)
        fuzz::require(LibraryArchive::archivedData((*root)->feeds()).has_value());
    LegacyLibrary::importInto(*FeedGroup::make("legacy"), bytes, environment);
}

/// An article whose enclosure has no URL ends the program, by the law of its class.
bool endsTheProgram(const Decoder& decoder) {
    const auto isNone = [](const auto& field) {
        const auto* const text = std::get_if<std::string>(&field.second);
        return field.first == "enclosureURL" && text && !URL::make(*text);
    };
    const auto enclosures = decoder.decodeDictionaries("enclosures").value_or(std::vector<CodedDictionary>());
    return std::any_of(enclosures.begin(), enclosures.end(),
        [&](const CodedDictionary& fields) { return std::any_of(fields.begin(), fields.end(), isNone); });
}

/// What was read can be written, and reads as as many articles; unless they share so much that the archive is refused.
void throughSavedArticles(std::string_view bytes) {
    KeyedUnarchiver unarchiver;
    unarchiver.setAllowsDictionaries(true);
    unarchiver.setClass("FeedItem", [](const Decoder& decoder) { return FeedItem::decode(decoder, offline()); });
    unarchiver.setClass("FeedItemArticle",
        [](const Decoder& decoder) { return endsTheProgram(decoder) ? nullptr : FeedItemArticle::decode(decoder, Date()); });
    const auto objects = unarchiver.unarchiveArray(bytes);
    if (!objects || !*objects)
        return;
    const auto written = KeyedArchiver::archivedData(std::vector<std::shared_ptr<const Coding>>((*objects)->begin(), (*objects)->end()));
    fuzz::require(written.has_value());
    const auto again = unarchiver.unarchiveArray(*written);
    fuzz::require(!again || (again->has_value() && (*again)->size() == (*objects)->size()));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Console::redirect([](std::string_view) {});
    const std::string_view bytes = fuzz::view(data, size);
    throughPropertyList(bytes);
    throughStates(bytes);
    throughTree(bytes);
    throughSavedArticles(bytes);
    return 0;
}
