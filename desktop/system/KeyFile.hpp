#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle::desktop {

/// A text of groups with keys and values, as desktop entries and lists of associations are (Desktop Entry Specification, "Basic format of
/// the file"). Lines that are not changed stay as they were, comments and faulty ones included. Thread: a value.
class KeyFile {
public:
    explicit KeyFile(std::string_view text = {});

    /// The first one counts; absent where there is none.
    std::optional<std::string> value(std::string_view group, std::string_view key) const;
    /// The value's parts between semicolons, the empty ones left out.
    std::vector<std::string> list(std::string_view group, std::string_view key) const;
    /// Replaces the value, or puts it at the end of its group, which is made where there is none.
    void set(std::string_view group, std::string_view key, std::string_view value);

    /// Every line ended by a line feed.
    std::string text() const;

private:
    struct Place {
        std::optional<std::size_t> line;       ///< of the key
        std::optional<std::size_t> endOfGroup; ///< behind its last line that is not blank
    };

    Place find(std::string_view group, std::string_view key) const;

    std::vector<std::string> _lines;
};

} // namespace brindle::desktop
