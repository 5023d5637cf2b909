#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace brindle {

/// Rows of text in aligned columns, for people: each column as wide as its widest cell, but 80 at the most, counted in user-perceived
/// characters; wider cells stand out. Cells are made single lines. Thread: any.
class TextTable {
public:
    explicit TextTable(std::vector<std::string> titles) { add(std::move(titles)); }

    /// A row may have fewer cells than the titles, not more.
    void add(std::vector<std::string> cells);
    /// The titles and the rows, each line ended; only the titles' line when there are no rows.
    std::string text() const;

private:
    std::vector<std::vector<std::string>> _rows;
    std::vector<std::size_t> _widths;
};

} // namespace brindle
