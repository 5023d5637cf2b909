#pragma once

#include "platform/TableCellView.hpp"
#include "platform/TextField.hpp"

namespace brindle {

/// The header of a section. Thread: main.
class GroupTableCellView : public TableCellView {
public:
    TextField nameTextField;
};

} // namespace brindle
