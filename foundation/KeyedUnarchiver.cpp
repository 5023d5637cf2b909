#include "foundation/KeyedUnarchiver.hpp"

#include <algorithm>
#include <array>

namespace brindle {

namespace {

using Index = PropertyList::Index;
using Error = PropertyList::Error;
using Factories = std::map<std::string, KeyedUnarchiver::Factory, std::less<>>;

enum class InstanceKind { text, array, dictionary };

/// The classes that are understood without being registered.
std::optional<InstanceKind> containerKind(std::string_view className) {
    constexpr std::array<std::pair<std::string_view, InstanceKind>, 6> containers = {
        {{"NSArray", InstanceKind::array}, {"NSMutableArray", InstanceKind::array}, {"NSDictionary", InstanceKind::dictionary},
            {"NSMutableDictionary", InstanceKind::dictionary}, {"NSString", InstanceKind::text}, {"NSMutableString", InstanceKind::text}}};
    for (const auto& [name, kind] : containers) {
        if (name == className)
            return kind;
    }
    return std::nullopt;
}

/// An archive's objects and what has been made of them so far, by their places in "$objects".
class Archive {
public:
    /// Reads the archive's objects, and gives the reference to its root, which leads to a place.
    tl::expected<Index, Error> open(std::string_view bytes);

    Index object(std::size_t place) const { return (*_objects)[place]; }
    const PropertyList& list() const { return _list; }

    /// The place that a reference in the list leads to; absent for anything else and for the null object.
    std::optional<std::size_t> place(Index reference) const;

    /// The class of the instance at a place; absent for plain values. Names a class without a name as the empty text.
    std::optional<std::string_view> className(std::size_t place) const;

    /// The places that the one given refers to, in order.
    std::vector<std::size_t> references(std::size_t place) const;

    std::optional<std::string> text(Index value) const;
    std::optional<std::int64_t> integer(Index value) const;
    std::optional<std::string> data(Index value) const;

    /// The references under a key of the container instance that `value` leads to.
    const PropertyList::Array* elements(Index value, InstanceKind kind, std::string_view key) const;

    /// What was made of the object that `value` leads to; null where that is none.
    std::shared_ptr<Coding> objectAt(Index value) const {
        const std::optional<std::size_t> found = place(value);
        return found ? made[*found] : nullptr;
    }

    std::vector<std::shared_ptr<Coding>> made;

private:
    PropertyList _list;
    const PropertyList::Array* _objects = nullptr;
};

tl::expected<Index, Error> Archive::open(std::string_view bytes) {
    tl::expected<PropertyList, Error> list = PropertyList::read(bytes);
    if (!list)
        return tl::unexpected(list.error());
    _list = *std::move(list);
    const std::optional<Index> objects = _list.value(_list.root, "$objects");
    _objects = objects ? _list.get<PropertyList::Array>(*objects) : nullptr;
    if (_objects == nullptr)
        return tl::unexpected(Error{"Not a keyed archive"});
    made.resize(_objects->size());
    const std::optional<Index> top = _list.value(_list.root, "$top");
    const std::optional<Index> root = top ? _list.value(*top, "root") : std::nullopt;
    if (!root || !place(*root))
        return tl::unexpected(Error{"A keyed archive without a root object"});
    return *root;
}

std::optional<std::size_t> Archive::place(Index reference) const {
    const auto* const uid = _list.get<PropertyList::UID>(reference);
    if (uid == nullptr || uid->value == 0 || uid->value >= _objects->size())
        return std::nullopt;
    return static_cast<std::size_t>(uid->value);
}

std::optional<std::string_view> Archive::className(std::size_t place) const {
    const std::optional<Index> reference = _list.value(object(place), "$class");
    if (!reference)
        return std::nullopt;
    const std::optional<std::size_t> classPlace = this->place(*reference);
    const std::optional<Index> name = classPlace ? _list.value(object(*classPlace), "$classname") : std::nullopt;
    const auto* const text = name ? _list.get<std::string>(*name) : nullptr;
    return text == nullptr ? std::string_view() : std::string_view(*text);
}

std::vector<std::size_t> Archive::references(std::size_t place) const {
    std::vector<std::size_t> places;
    const auto add = [&](Index reference) {
        if (const std::optional<std::size_t> found = this->place(reference))
            places.push_back(*found);
    };
    const auto* const fields = _list.get<PropertyList::Dictionary>(object(place));
    if (fields == nullptr)
        return places;
    for (const auto& [key, value] : *fields) {
        add(value);
        if (const auto* const array = _list.get<PropertyList::Array>(value))
            std::for_each(array->begin(), array->end(), add);
    }
    return places;
}

std::optional<std::string> Archive::text(Index value) const {
    const std::optional<std::size_t> found = place(value);
    const Index object = found ? this->object(*found) : value;
    if (const auto* const text = _list.get<std::string>(object))
        return *text;
    const bool isText = found && containerKind(className(*found).value_or("")) == InstanceKind::text;
    const std::optional<Index> wrapped = isText ? _list.value(object, "NS.string") : std::nullopt;
    const auto* const text = wrapped ? _list.get<std::string>(*wrapped) : nullptr;
    return text == nullptr ? std::nullopt : std::optional(*text);
}

std::optional<std::int64_t> Archive::integer(Index value) const {
    const std::optional<std::size_t> found = place(value);
    return _list.integer(found ? this->object(*found) : value);
}

std::optional<std::string> Archive::data(Index value) const {
    const std::optional<std::size_t> found = place(value);
    const auto* const data = _list.get<PropertyList::Data>(found ? this->object(*found) : value);
    return data == nullptr ? std::nullopt : std::optional(data->bytes);
}

const PropertyList::Array* Archive::elements(Index value, InstanceKind kind, std::string_view key) const {
    const std::optional<std::size_t> found = place(value);
    if (!found || containerKind(className(*found).value_or("")) != kind)
        return nullptr;
    const std::optional<Index> array = _list.value(object(*found), key);
    return array ? _list.get<PropertyList::Array>(*array) : nullptr;
}

/// Reads the fields of one instance.
class FieldDecoder : public Decoder {
public:
    FieldDecoder(const Archive& archive, Index fields) : _archive(archive), _fields(fields) {}

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
    std::optional<Index> field(std::string_view key) const { return _archive.list().value(_fields, key); }

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

    const Archive& _archive;
    Index _fields;
};

/// The places that can be reached from `root`, each behind those that it refers to, as far as no circle forbids it.
std::vector<std::size_t> childrenFirst(const Archive& archive, std::size_t root) {
    struct Visit {
        std::size_t place = 0;
        std::vector<std::size_t> references;
        std::size_t next = 0;
    };
    std::vector<std::size_t> order;
    std::vector<bool> reached(archive.made.size(), false);
    std::vector<Visit> visits;
    const auto visit = [&](std::size_t place) {
        reached[place] = true;
        visits.push_back(Visit{place, archive.references(place), 0});
    };
    visit(root);
    while (!visits.empty()) {
        Visit& current = visits.back();
        if (current.next == current.references.size()) {
            order.push_back(current.place);
            visits.pop_back();
            continue;
        }
        const std::size_t place = current.references[current.next++];
        if (!reached[place])
            visit(place);
    }
    return order;
}

/// Makes all that the root leads to, and gives the reference to the root; an error where a class is not to stand there.
tl::expected<Index, Error> makeObjects(Archive& archive, std::string_view bytes, const Factories& factories, bool allowsDictionaries) {
    const auto root = archive.open(bytes);
    if (!root)
        return root;
    for (const std::size_t place : childrenFirst(archive, archive.place(*root).value())) {
        const std::optional<std::string_view> className = archive.className(place);
        const std::optional<InstanceKind> container = className ? containerKind(*className) : std::nullopt;
        if (!className || (container && (container != InstanceKind::dictionary || allowsDictionaries)))
            continue;
        const auto factory = factories.find(*className);
        if (factory == factories.end())
            return tl::unexpected(Error{"The archive holds an object of the unexpected class \"" + std::string(*className) + "\""});
        archive.made[place] = factory->second(FieldDecoder(archive, archive.object(place)));
    }
    return root;
}

} // namespace

void KeyedUnarchiver::setClass(std::string className, Factory factory) {
    _factories.insert_or_assign(std::move(className), std::move(factory));
}

tl::expected<std::shared_ptr<Coding>, Error> KeyedUnarchiver::unarchive(std::string_view bytes) const {
    Archive archive;
    return makeObjects(archive, bytes, _factories, _allowsDictionaries).map([&](Index root) { return archive.objectAt(root); });
}

tl::expected<std::optional<std::vector<std::shared_ptr<Coding>>>, Error> KeyedUnarchiver::unarchiveArray(std::string_view bytes) const {
    Archive archive;
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
