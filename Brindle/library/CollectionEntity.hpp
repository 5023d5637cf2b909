#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brindle {

/// A list that is made of the library by a rule, and shown as a feed is. It holds the result of its last refresh. Thread: main.
template <typename Element>
class CollectionEntity {
public:
    using Entities = std::vector<std::shared_ptr<Element>>;

    explicit CollectionEntity(std::string displayName) : name(std::move(displayName)) {}
    virtual ~CollectionEntity() = default;
    CollectionEntity(const CollectionEntity&) = delete;
    CollectionEntity& operator=(const CollectionEntity&) = delete;

    const std::string name;     ///< in the user's language
    const bool isGroup = false; ///< for the outline

    virtual const Entities& entities() const { return _entities; }
    virtual void setEntities(Entities entities) { _entities = std::move(entities); }

    /// Makes the list anew; the base has no rule, and keeps what it has.
    virtual void refresh() {}

private:
    Entities _entities;
};

} // namespace brindle
