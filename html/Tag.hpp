#pragma once

#include <cstdint>
#include <string_view>

#include "html/TagId.hpp"

namespace brindle::html {

/// What a tag name stands for. Tags are interned: two elements of one document with the same name share one `Tag`,
/// and the tags of the HTML standard are constants that all documents share. Immutable.
class Tag {
public:
    enum Flag : std::uint16_t {
        block = 1U << 0,
        formattedAsBlock = 1U << 1,
        containsBlock = 1U << 2,
        containsInline = 1U << 3,
        empty = 1U << 4,
        selfClosing = 1U << 5,
        whitespacePreserved = 1U << 6,
        formListed = 1U << 7,
        formSubmitted = 1U << 8,
    };

    static constexpr std::uint16_t usualFlags = block | formattedAsBlock | containsBlock | containsInline;

    /// The flags of a tag that the toolkit does not know.
    static constexpr std::uint16_t unknownFlags = usualFlags & ~block;

    constexpr Tag(std::string_view name, std::string_view normalName, std::uint16_t flags, TagId id = TagId::unknown) noexcept
        : _name(name), _normalName(normalName), _flags(flags), _id(id) {}

    /// The tag of the HTML standard with exactly this name, or null. The known names are in lower case.
    static const Tag* known(std::string_view name) noexcept;

    /// The tag with this identity, which must not be `unknown`.
    static const Tag& known(TagId id) noexcept;

    /// The name as kept under the settings of the parse.
    constexpr std::string_view name() const noexcept { return _name; }

    /// The name in ASCII lower case.
    constexpr std::string_view normalName() const noexcept { return _normalName; }

    /// Which known tag it is, whatever the case of its name.
    constexpr TagId id() const noexcept { return _id; }

    constexpr bool isBlock() const noexcept { return has(block); }

    /// Whether the element and its text are laid out on lines of their own when written.
    constexpr bool formatAsBlock() const noexcept { return has(formattedAsBlock); }

    constexpr bool canContainBlock() const noexcept { return has(containsBlock); }
    constexpr bool canContainInline() const noexcept { return has(containsInline); }

    /// Whether elements of this tag never have children in HTML ("void elements").
    constexpr bool isEmpty() const noexcept { return has(empty); }

    constexpr bool isSelfClosing() const noexcept { return has(selfClosing); }
    constexpr bool preserveWhitespace() const noexcept { return has(whitespacePreserved); }

    /// Whether elements of this tag are listed as controls of their form.
    constexpr bool isFormListed() const noexcept { return has(formListed); }

    /// Whether elements of this tag can be submitted with their form.
    constexpr bool isFormSubmittable() const noexcept { return has(formSubmitted); }

private:
    constexpr bool has(Flag flag) const noexcept { return (_flags & flag) != 0; }

    std::string_view _name;
    std::string_view _normalName;
    std::uint16_t _flags;
    TagId _id;
};

} // namespace brindle::html
