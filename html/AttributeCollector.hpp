#pragma once

#include <span>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "html/Attributes.hpp"

namespace brindle::html {

/// The attributes of the tag being read: the first of repeated keys wins, in a time that grows with their number only.
class AttributeCollector {
public:
    void clear() noexcept {
        _attributes.clear();
        if (!_keys.empty()) {
            _keys.clear();
        }
    }

    /// Whether the key was not there yet.
    bool isNew(std::string_view key);

    void add(std::string_view key, std::string_view value) { _attributes.push_back({key, value}); }

    std::span<const Attribute> attributes() const noexcept { return _attributes; }

private:
    static constexpr std::size_t fewAttributes = 16;

    std::vector<Attribute> _attributes;
    std::unordered_set<std::string_view> _keys; ///< In use for more than a few attributes.
};

} // namespace brindle::html
