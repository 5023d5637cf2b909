#include "foundation/KeyedArchive.hpp"

#include <array>
#include <utility>

namespace brindle {

namespace {

using Index = PropertyList::Index;
using Error = PropertyList::Error;

constexpr std::size_t smallestAllowance = 10'000'000;
constexpr std::size_t allowanceForByte = 20;
constexpr std::size_t costOfElement = sizeof(std::shared_ptr<Coding>);

} // namespace

std::optional<KeyedArchive::InstanceKind> KeyedArchive::containerKind(std::string_view className) {
    constexpr std::array<std::pair<std::string_view, InstanceKind>, 6> containers = {
        {{"NSArray", InstanceKind::array}, {"NSMutableArray", InstanceKind::array}, {"NSDictionary", InstanceKind::dictionary},
            {"NSMutableDictionary", InstanceKind::dictionary}, {"NSString", InstanceKind::text}, {"NSMutableString", InstanceKind::text}}};
    for (const auto& [name, kind] : containers) {
        if (name == className)
            return kind;
    }
    return std::nullopt;
}

tl::expected<Index, Error> KeyedArchive::open(std::string_view bytes) {
    tl::expected<PropertyList, Error> list = PropertyList::read(bytes);
    if (!list)
        return tl::unexpected(list.error());
    _list = *std::move(list);
    _allowance = smallestAllowance + allowanceForByte * bytes.size();
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

std::optional<std::size_t> KeyedArchive::place(Index reference) const {
    const auto* const uid = _list.get<PropertyList::UID>(reference);
    if (uid == nullptr || uid->value == 0 || uid->value >= _objects->size())
        return std::nullopt;
    return static_cast<std::size_t>(uid->value);
}

bool KeyedArchive::spend(std::size_t cost) {
    _isSpent = _isSpent || cost > _allowance;
    _allowance -= _isSpent ? 0 : cost;
    return !_isSpent;
}

std::optional<Index> KeyedArchive::value(Index dictionary, std::string_view key) {
    const auto* const fields = _list.get<PropertyList::Dictionary>(dictionary);
    return fields != nullptr && spend(fields->size()) ? _list.value(dictionary, key) : std::nullopt;
}

std::optional<std::string_view> KeyedArchive::className(std::size_t place) {
    const std::optional<Index> reference = value(object(place), "$class");
    if (!reference)
        return std::nullopt;
    const std::optional<std::size_t> classPlace = this->place(*reference);
    const std::optional<Index> name = classPlace ? value(object(*classPlace), "$classname") : std::nullopt;
    const auto* const text = name ? _list.get<std::string>(*name) : nullptr;
    return text == nullptr ? std::string_view() : std::string_view(*text);
}

std::optional<std::string> KeyedArchive::text(Index value) {
    const std::optional<std::size_t> found = place(value);
    const Index object = found ? this->object(*found) : value;
    const auto* text = _list.get<std::string>(object);
    if (text == nullptr && found && containerKind(className(*found).value_or("")) == InstanceKind::text) {
        const std::optional<Index> wrapped = this->value(object, "NS.string");
        text = wrapped ? _list.get<std::string>(*wrapped) : nullptr;
    }
    return text != nullptr && spend(text->size()) ? std::optional(*text) : std::nullopt;
}

std::optional<std::int64_t> KeyedArchive::integer(Index value) const {
    const std::optional<std::size_t> found = place(value);
    return _list.integer(found ? this->object(*found) : value);
}

std::optional<std::string> KeyedArchive::data(Index value) {
    const std::optional<std::size_t> found = place(value);
    const auto* const data = _list.get<PropertyList::Data>(found ? this->object(*found) : value);
    return data != nullptr && spend(data->bytes.size()) ? std::optional(data->bytes) : std::nullopt;
}

const PropertyList::Array* KeyedArchive::elements(Index value, InstanceKind kind, std::string_view key) {
    const std::optional<std::size_t> found = place(value);
    if (!found || containerKind(className(*found).value_or("")) != kind)
        return nullptr;
    const std::optional<Index> field = this->value(object(*found), key);
    const auto* const array = field ? _list.get<PropertyList::Array>(*field) : nullptr;
    return array != nullptr && spend(costOfElement * array->size()) ? array : nullptr;
}

} // namespace brindle
