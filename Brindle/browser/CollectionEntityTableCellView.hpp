#pragma once

#include "platform/ImageView.hpp"
#include "platform/TableCellView.hpp"
#include "platform/TextField.hpp"

namespace brindle {

/// The row of a collection. Thread: main.
class CollectionEntityTableCellView : public TableCellView {
public:
    ImageView iconImageView;
    TextField nameTextField;
    TextField counterTextField; ///< how many articles it has
};

} // namespace brindle
