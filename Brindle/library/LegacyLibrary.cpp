#include "Brindle/library/LegacyLibrary.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "foundation/PropertyList.hpp"

#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brindle {

namespace {

/// One run over one legacy file.
class Import {
public:
    Import(PropertyList list, const SyndicatedSessionEnvironment& environment)
        : _list(std::move(list)), _environment(environment), _isImported(_list.objects.size()) {}

    void into(FeedGroup& group) {
        enter(_list.root, group);
        while (!_open.empty()) {
            auto& [array, next, parent] = _open.back();
            if (next == array->size())
                _open.pop_back();
            else
                importElement((*array)[next++], *parent);
        }
    }

private:
    /// An array that is being imported, and how far.
    struct Level {
        const PropertyList::Array* array;
        std::size_t next;
        FeedGroup* group;
    };

    /// An array is imported once, however often a damaged file refers to it: so it may contain itself, or multiply, without harm.
    void enter(PropertyList::Index index, FeedGroup& group) {
        const auto* array = _list.get<PropertyList::Array>(index);
        if (!array || _isImported[index])
            return;
        _isImported[index] = true;
        _open.push_back({array, 0, &group});
    }

    void importElement(PropertyList::Index element, FeedGroup& parent) {
        const auto kind = text(element, "Kind");
        if (kind == "feedSeparator") {
            append(FeedSeparator::make(), parent);
        } else if (kind == "feedGroup") {
            const auto group = FeedGroup::make(text(element, "groupName").value_or(std::string()));
            append(group, parent);
            if (const auto children = _list.value(element, "groupList"))
                enter(*children, *group);
        } else if (kind == "feedItem") {
            importItem(element, parent);
        }
    }

    void importItem(PropertyList::Index element, FeedGroup& parent) {
        auto name = text(element, "name");
        auto url = URL::make(text(element, "feedURL").value_or(std::string()));
        if (!name || !url)
            return;
        const auto item =
            FeedItem::make(*std::move(name), *std::move(url), number(element, "feedRefreshrate").value_or(FeedItem::defaultUpdateRate),
                text(element, "feedUsername").value_or(std::string()), {}, _environment);
        item->uuid = UUID::make(text(element, "feedUUID").value_or(std::string())).value_or(item->uuid);
        append(item, parent);
    }

    static void append(const std::shared_ptr<Feed>& feed, FeedGroup& parent) { parent.add(feed, std::ssize(parent.feeds())); }

    std::optional<std::string> text(PropertyList::Index dictionary, std::string_view key) const {
        const auto value = _list.value(dictionary, key);
        const auto* found = value ? _list.get<std::string>(*value) : nullptr;
        return found ? std::optional(*found) : std::nullopt;
    }

    /// A number's whole part; absent where it does not fit.
    std::optional<std::int64_t> number(PropertyList::Index dictionary, std::string_view key) const {
        const auto value = _list.value(dictionary, key);
        return value ? _list.integer(*value) : std::nullopt;
    }

    PropertyList _list;
    const SyndicatedSessionEnvironment& _environment;
    std::vector<bool> _isImported; ///< by object
    std::vector<Level> _open;
};

} // namespace

void LegacyLibrary::importInto(FeedGroup& group, std::string_view bytes, const SyndicatedSessionEnvironment& environment) {
    if (auto list = PropertyList::read(bytes))
        Import(*std::move(list), environment).into(group);
}

} // namespace brindle
