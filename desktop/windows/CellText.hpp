#pragma once

#include "platform/TableCellView.hpp"

#include <QString>

namespace brindle::desktop {

/// The name that a cell shows, or its beginning; empty for one that shows none.
QString cellName(const TableCellView& cell);

/// What a screen reader says of a cell: the name, and in words what the cell draws beside it.
QString cellDescription(const TableCellView& cell);

} // namespace brindle::desktop
