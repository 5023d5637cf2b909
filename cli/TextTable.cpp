#include "cli/TextTable.hpp"

#include "cli/SingleLine.hpp"
#include "foundation/Text.hpp"

#include <algorithm>

namespace brindle {

namespace {

constexpr std::size_t widestColumn = 80;

} // namespace

void TextTable::add(std::vector<std::string> cells) {
    _widths.resize(std::max(_widths.size(), cells.size()));
    for (std::size_t i = 0; i < cells.size(); ++i) {
        cells[i] = singleLine(cells[i]);
        _widths[i] = std::max(_widths[i], std::min(text::characterCount(cells[i]), widestColumn));
    }
    _rows.push_back(std::move(cells));
}

std::string TextTable::text() const {
    std::string text;
    for (const std::vector<std::string>& row : _rows) {
        std::size_t owed = 0;
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (row[i].empty()) {
                owed += _widths[i] + 2;
                continue;
            }
            text.append(owed, ' ');
            text += row[i];
            owed = _widths[i] - std::min(text::characterCount(row[i]), _widths[i]) + 2;
        }
        text += '\n';
    }
    return text;
}

} // namespace brindle
