#pragma once

#include "foundation/Coding.hpp"

#include <memory>
#include <string>

namespace brindle {

class FeedGroup;

/// One entry of the user's tree: a feed, a group or a separator. A list owns its entries; `parent` never owns. Thread: main.
class Feed : public Coding, public std::enable_shared_from_this<Feed> {
public:
    enum class Kind { item = 0, group, separator };

    const Kind kind;
    std::weak_ptr<FeedGroup> parent; ///< empty at the top level

    virtual std::string name() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }

protected:
    Feed(Kind feedKind, std::string name) : kind(feedKind), _name(std::move(name)) {}
    const std::string& storedName() const { return _name; }

private:
    std::string _name;
};

} // namespace brindle
