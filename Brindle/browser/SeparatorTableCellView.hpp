#pragma once

#include "platform/TableCellView.hpp"

namespace brindle {

/// A line between rows. Thread: main.
class SeparatorTableCellView : public TableCellView {};

} // namespace brindle
