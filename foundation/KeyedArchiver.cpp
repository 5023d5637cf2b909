#include "foundation/KeyedArchiver.hpp"

#include <unordered_map>

namespace brindle {

namespace {

using Index = PropertyList::Index;

/// The archive under construction. An object's number, by which others refer to it, is its place in "$objects".
class Archive {
public:
    Archive() {
        _objects.push_back(_list.add(std::string("$null")));
        _list.root = _list.add(PropertyList::Dictionary());
    }

    /// The bytes of the archive whose root is what `root` refers to.
    std::string write(Index root);

    /// The reference to a text, number or object, which joins the archive when it is new there.
    Index reference(std::string_view text);
    Index reference(std::int64_t integer);
    Index reference(const std::shared_ptr<const Coding>& object);

    /// The reference to a fresh array or dictionary.
    Index arrayReference(const std::vector<std::shared_ptr<const Coding>>& objects);
    Index arrayReference(PropertyList::Array references);
    Index dictionaryReference(const CodedDictionary& dictionary);

    /// The object in the list for an integer, or for bytes, that stands where it is used.
    Index inlineInteger(std::int64_t integer) { return _list.add(integer); }
    Index inlineData(const PropertyList::Data& data) { return _list.add(data); }

    void set(PropertyList::Dictionary& fields, std::string_view key, Index value) { fields.emplace_back(keyText(key), value); }

private:
    std::uint64_t append(PropertyList::Object object) {
        _objects.push_back(_list.add(std::move(object)));
        return _objects.size() - 1;
    }

    Index uid(std::uint64_t number) { return _list.add(PropertyList::UID{number}); }
    Index keyText(std::string_view key);
    Index classReference(const std::vector<std::string_view>& classes);

    PropertyList _list;
    PropertyList::Array _objects;
    std::unordered_map<std::string, Index> _keys;
    std::unordered_map<std::string, std::uint64_t> _texts;
    std::unordered_map<std::int64_t, std::uint64_t> _integers;
    std::unordered_map<std::string, std::uint64_t> _classes;
    std::unordered_map<const Coding*, std::uint64_t> _numbers;
    /// Objects with a number whose fields are yet to be written, in order; kept to the end, so that no address is used twice.
    std::vector<std::shared_ptr<const Coding>> _reached;
    std::vector<std::uint64_t> _reachedNumbers;
};

/// Writes one object's fields.
class FieldCoder : public Coder {
public:
    explicit FieldCoder(Archive& archive) : _archive(archive) {}

    void encode(std::string_view key, std::string_view text) override { set(key, _archive.reference(text)); }
    void encode(std::string_view key, std::int64_t integer) override { set(key, _archive.inlineInteger(integer)); }
    void encode(std::string_view key, const PropertyList::Data& data) override { set(key, _archive.inlineData(data)); }
    void encode(std::string_view key, std::shared_ptr<const Coding> object) override { set(key, _archive.reference(object)); }

    void encode(std::string_view key, const std::vector<std::shared_ptr<const Coding>>& array) override {
        set(key, _archive.arrayReference(array));
    }

    void encode(std::string_view key, const std::vector<CodedDictionary>& array) override {
        PropertyList::Array references;
        references.reserve(array.size());
        for (const CodedDictionary& dictionary : array)
            references.push_back(_archive.dictionaryReference(dictionary));
        set(key, _archive.arrayReference(std::move(references)));
    }

    PropertyList::Dictionary fields;

private:
    void set(std::string_view key, Index value) { _archive.set(fields, key, value); }

    Archive& _archive;
};

std::string Archive::write(Index root) {
    PropertyList::Dictionary top;
    set(top, "root", root);
    for (std::size_t next = 0; next < _reached.size(); ++next) {
        const std::shared_ptr<const Coding> object = _reached[next];
        FieldCoder coder(*this);
        object->encode(coder);
        set(coder.fields, "$class", classReference(object->archiveClasses()));
        _list.objects[_objects[_reachedNumbers[next]]] = std::move(coder.fields);
    }
    PropertyList::Dictionary archive;
    set(archive, "$version", _list.add(std::int64_t(100000)));
    set(archive, "$archiver", _list.add(std::string("NSKeyedArchiver")));
    set(archive, "$top", _list.add(std::move(top)));
    set(archive, "$objects", _list.add(std::move(_objects)));
    _list.objects[_list.root] = std::move(archive);
    return _list.binary();
}

Index Archive::reference(std::string_view text) {
    const auto [entry, isNew] = _texts.try_emplace(std::string(text));
    if (isNew)
        entry->second = append(std::string(text));
    return uid(entry->second);
}

Index Archive::reference(std::int64_t integer) {
    const auto [entry, isNew] = _integers.try_emplace(integer);
    if (isNew)
        entry->second = append(integer);
    return uid(entry->second);
}

Index Archive::reference(const std::shared_ptr<const Coding>& object) {
    if (object == nullptr)
        return uid(0);
    const auto [entry, isNew] = _numbers.try_emplace(object.get());
    if (isNew) {
        entry->second = append(PropertyList::Dictionary());
        _reached.push_back(object);
        _reachedNumbers.push_back(entry->second);
    }
    return uid(entry->second);
}

Index Archive::arrayReference(const std::vector<std::shared_ptr<const Coding>>& objects) {
    PropertyList::Array references;
    references.reserve(objects.size());
    for (const std::shared_ptr<const Coding>& object : objects)
        references.push_back(reference(object));
    return arrayReference(std::move(references));
}

Index Archive::arrayReference(PropertyList::Array references) {
    PropertyList::Dictionary fields;
    set(fields, "NS.objects", _list.add(std::move(references)));
    set(fields, "$class", classReference({"NSArray"}));
    return uid(append(std::move(fields)));
}

Index Archive::dictionaryReference(const CodedDictionary& dictionary) {
    PropertyList::Array keys;
    PropertyList::Array values;
    for (const auto& [key, value] : dictionary) {
        keys.push_back(reference(std::string_view(key)));
        const auto* const text = std::get_if<std::string>(&value);
        values.push_back(text != nullptr ? reference(std::string_view(*text)) : reference(std::get<std::int64_t>(value)));
    }
    PropertyList::Dictionary fields;
    set(fields, "NS.keys", _list.add(std::move(keys)));
    set(fields, "NS.objects", _list.add(std::move(values)));
    set(fields, "$class", classReference({"NSDictionary"}));
    return uid(append(std::move(fields)));
}

Index Archive::keyText(std::string_view key) {
    const auto [entry, isNew] = _keys.try_emplace(std::string(key));
    if (isNew)
        entry->second = _list.add(std::string(key));
    return entry->second;
}

Index Archive::classReference(const std::vector<std::string_view>& classes) {
    const std::string name(classes.empty() ? std::string_view("NSObject") : classes.front());
    const auto [entry, isNew] = _classes.try_emplace(name);
    if (isNew) {
        PropertyList::Array names;
        for (const std::string_view ancestor : classes)
            names.push_back(_list.add(std::string(ancestor)));
        names.push_back(_list.add(std::string("NSObject")));
        PropertyList::Dictionary fields;
        set(fields, "$classname", _list.add(name));
        set(fields, "$classes", _list.add(std::move(names)));
        entry->second = append(std::move(fields));
    }
    return uid(entry->second);
}

} // namespace

tl::expected<std::string, PropertyList::Error> KeyedArchiver::archivedData(const std::shared_ptr<const Coding>& root) {
    if (root == nullptr)
        return tl::unexpected(PropertyList::Error{"There is no object to archive"});
    Archive archive;
    return archive.write(archive.reference(root));
}

tl::expected<std::string, PropertyList::Error> KeyedArchiver::archivedData(const std::vector<std::shared_ptr<const Coding>>& root) {
    Archive archive;
    return archive.write(archive.arrayReference(root));
}

} // namespace brindle
