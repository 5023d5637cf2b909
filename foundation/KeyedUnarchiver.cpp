#include "foundation/KeyedUnarchiver.hpp"

#include "foundation/KeyedArchive.hpp"

#include <algorithm>

namespace brindle {

namespace {

using Index = PropertyList::Index;
using Error = PropertyList::Error;
using InstanceKind = KeyedArchive::InstanceKind;
using Factories = std::map<std::string, KeyedUnarchiver::Factory, std::less<>>;

/// Reads the fields of one instance.
class FieldDecoder : public Decoder {
public:
    FieldDecoder(KeyedArchive& archive, Index fields) : _archive(archive), _fields(fields) {}

    std::optional<std::string> decodeText(std::string_view key) const override {
        const std::optional<Index> value = field(key);
        return value ? _archive.text(*value) : std::nullopt;
    }

    std::optional<std::int64_t> decodeInteger(std::string_view key) const override {
        const std::optional<Index> value = field(key);
        return value ? _archive.integer(*value) : std::nullopt;
    }

    std::optional<std::string> decodeData(std::string_view key) const override {
        const std::optional<Index> value = field(key);
        return value ? _archive.data(*value) : std::nullopt;
    }

    std::shared_ptr<Coding> decodeObject(std::string_view key) const override {
        const std::optional<Index> value = field(key);
        return value ? _archive.objectAt(*value) : nullptr;
    }

    std::optional<std::vector<std::shared_ptr<Coding>>> decodeObjects(std::string_view key) const override {
        const PropertyList::Array* const elements = array(key);
        if (elements == nullptr)
            return std::nullopt;
        std::vector<std::shared_ptr<Coding>> objects;
        for (const Index element : *elements) {
            if (std::shared_ptr<Coding> object = _archive.objectAt(element))
                objects.push_back(std::move(object));
        }
        return objects;
    }

    std::optional<std::vector<CodedDictionary>> decodeDictionaries(std::string_view key) const override {
        const PropertyList::Array* const elements = array(key);
        if (elements == nullptr)
            return std::nullopt;
        std::vector<CodedDictionary> dictionaries;
        for (const Index element : *elements) {
            const PropertyList::Array* const keys = _archive.elements(element, InstanceKind::dictionary, "NS.keys");
            const PropertyList::Array* const values = _archive.elements(element, InstanceKind::dictionary, "NS.objects");
            if (keys != nullptr && values != nullptr)
                dictionaries.push_back(dictionary(*keys, *values));
        }
        return dictionaries;
    }

private:
    std::optional<Index> field(std::string_view key) const { return _archive.value(_fields, key); }

    const PropertyList::Array* array(std::string_view key) const {
        const std::optional<Index> value = field(key);
        return value ? _archive.elements(*value, InstanceKind::array, "NS.objects") : nullptr;
    }

    CodedDictionary dictionary(const PropertyList::Array& keys, const PropertyList::Array& values) const {
        CodedDictionary result;
        for (std::size_t pair = 0; pair < std::min(keys.size(), values.size()); ++pair) {
            std::optional<std::string> key = _archive.text(keys[pair]);
            if (!key)
                continue;
            if (std::optional<std::string> text = _archive.text(values[pair]))
                result.emplace_back(*std::move(key), *std::move(text));
            else if (const std::optional<std::int64_t> integer = _archive.integer(values[pair]))
                result.emplace_back(*std::move(key), *integer);
        }
        return result;
    }

    KeyedArchive& _archive;
    Index _fields;
};

/// A walk over what the object at a place holds: its fields' values, and in place of an array that array's elements.
class Visit {
public:
    Visit(const KeyedArchive& archive, std::size_t at)
        : place(at), _list(archive.list()), _fields(_list.get<PropertyList::Dictionary>(archive.object(at))) {}

    /// Absent behind the last one.
    std::optional<Index> next() {
        for (; _fields != nullptr && _field < _fields->size(); ++_field, _element = 0) {
            const Index value = (*_fields)[_field].second;
            const auto* const array = _list.get<PropertyList::Array>(value);
            if (_element < (array == nullptr ? 1 : array->size())) {
                const std::size_t element = _element++;
                return array == nullptr ? value : (*array)[element];
            }
        }
        return std::nullopt;
    }

    const std::size_t place;

private:
    const PropertyList& _list;
    const PropertyList::Dictionary* const _fields;
    std::size_t _field = 0;
    std::size_t _element = 0;
};

/// The places that can be reached from `root`, each behind those that it refers to, as far as no circle forbids it.
std::vector<std::size_t> childrenFirst(KeyedArchive& archive, std::size_t root) {
    std::vector<std::size_t> order;
    std::vector<bool> reached(archive.made.size(), false);
    std::vector<Visit> visits;
    const auto visit = [&](std::size_t place) {
        reached[place] = true;
        visits.emplace_back(archive, place);
    };
    visit(root);
    while (!visits.empty()) {
        const std::optional<Index> reference = visits.back().next();
        if (!reference || !archive.spend(1)) {
            order.push_back(visits.back().place);
            visits.pop_back();
            continue;
        }
        const std::optional<std::size_t> place = archive.place(*reference);
        if (place && !reached[*place])
            visit(*place);
    }
    return order;
}

Error overspent() {
    return {"The archive's objects share more than can be read for each of them"};
}

/// Makes all that the root leads to, and gives the reference to the root; an error where a class is not to stand there.
tl::expected<Index, Error> makeObjects(KeyedArchive& archive, std::string_view bytes, const Factories& factories, bool allowsDictionaries) {
    const auto root = archive.open(bytes);
    if (!root)
        return root;
    for (const std::size_t place : childrenFirst(archive, archive.place(*root).value())) {
        if (archive.isSpent())
            return tl::unexpected(overspent());
        const std::optional<std::string_view> className = archive.className(place);
        const std::optional<InstanceKind> container = className ? KeyedArchive::containerKind(*className) : std::nullopt;
        if (!className || (container && (container != InstanceKind::dictionary || allowsDictionaries)))
            continue;
        const auto factory = factories.find(*className);
        if (factory == factories.end())
            return tl::unexpected(Error{"The archive holds an object of the unexpected class \"" + std::string(*className) + "\""});
        archive.made[place] = factory->second(FieldDecoder(archive, archive.object(place)));
    }
    if (archive.isSpent())
        return tl::unexpected(overspent());
    return root;
}

} // namespace

void KeyedUnarchiver::setClass(std::string className, Factory factory) {
    _factories.insert_or_assign(std::move(className), std::move(factory));
}

tl::expected<std::shared_ptr<Coding>, Error> KeyedUnarchiver::unarchive(std::string_view bytes) const {
    KeyedArchive archive;
    return makeObjects(archive, bytes, _factories, _allowsDictionaries).map([&](Index root) { return archive.objectAt(root); });
}

tl::expected<std::optional<std::vector<std::shared_ptr<Coding>>>, Error> KeyedUnarchiver::unarchiveArray(std::string_view bytes) const {
    KeyedArchive archive;
    const auto root = makeObjects(archive, bytes, _factories, _allowsDictionaries);
    if (!root)
        return tl::unexpected(root.error());
    const PropertyList::Array* const elements = archive.elements(*root, InstanceKind::array, "NS.objects");
    if (elements == nullptr)
        return std::nullopt;
    std::vector<std::shared_ptr<Coding>> objects;
    for (const Index element : *elements) {
        objects.push_back(archive.objectAt(element));
        if (objects.back() == nullptr)
            return std::nullopt;
    }
    return objects;
}

} // namespace brindle
