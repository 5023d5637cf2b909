#pragma once

#include "foundation/Object.hpp"

namespace brindle {

/// What one cell of a table or an outline shows; a toolkit draws those that it knows. Made for a row that is to be shown, and afresh when
/// the row is reloaded. Thread: main.
class TableCellView : public Object {};

} // namespace brindle
