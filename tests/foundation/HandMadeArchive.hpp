#pragma once

#include "foundation/PropertyList.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace brindle::testsupport {

/// A keyed archive by hand, with a node at place 1; classes, objects and fields are added before it is written.
class HandMadeArchive {
public:
    HandMadeArchive() {
        add(std::string("$null"));
        add(PropertyList::Dictionary());
        _class = addClass("Node");
        set(1, "$class", uid(_class));
    }

    PropertyList::Index uid(std::uint64_t place) { return list.add(PropertyList::UID{place}); }

    std::uint64_t add(PropertyList::Object object) {
        _objects.push_back(list.add(std::move(object)));
        return _objects.size() - 1;
    }

    std::uint64_t addClass(const std::string& name) {
        PropertyList::Dictionary fields = {{list.add(std::string("$classname")), list.add(name)}};
        return add(std::move(fields));
    }

    std::uint64_t addNode() {
        const std::uint64_t place = add(PropertyList::Dictionary());
        set(place, "$class", uid(_class));
        return place;
    }

    std::uint64_t addInstance(const std::string& className) {
        const std::uint64_t place = add(PropertyList::Dictionary());
        set(place, "$class", uid(addClass(className)));
        return place;
    }

    void set(std::uint64_t place, const std::string& key, PropertyList::Index value) {
        const PropertyList::Index text = list.add(key);
        std::get<PropertyList::Dictionary>(list.objects[_objects[static_cast<std::size_t>(place)]]).emplace_back(text, value);
    }

    std::string bytes(std::uint64_t root = 1) {
        PropertyList::Dictionary top = {{list.add(std::string("root")), uid(root)}};
        PropertyList::Dictionary archive = {
            {list.add(std::string("$top")), list.add(std::move(top))}, {list.add(std::string("$objects")), list.add(_objects)}};
        list.root = list.add(std::move(archive));
        return list.binary();
    }

    PropertyList list;

private:
    PropertyList::Array _objects;
    std::uint64_t _class = 0;
};

} // namespace brindle::testsupport
