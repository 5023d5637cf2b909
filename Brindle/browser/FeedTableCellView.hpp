#pragma once

#include "platform/ImageView.hpp"
#include "platform/TableCellView.hpp"
#include "platform/TextField.hpp"

namespace brindle {

/// The row of a feed or a group of feeds. Thread: main.
class FeedTableCellView : public TableCellView {
public:
    ImageView iconImageView;
    TextField nameTextField;
    TextField counterTextField; ///< how many articles are unread; empty for none
    TextField dateTextField;    ///< stays empty
};

} // namespace brindle
