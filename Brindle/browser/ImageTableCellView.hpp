#pragma once

#include "platform/ImageView.hpp"
#include "platform/TableCellView.hpp"

namespace brindle {

/// A cell that is an image, or empty. Thread: main.
class ImageTableCellView : public TableCellView {
public:
    ImageView imageView;
};

} // namespace brindle
