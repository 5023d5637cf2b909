#pragma once

#include "platform/Image.hpp"

#include <memory>
#include <optional>
#include <string>

namespace brindle {

class Menu;

/// The program's place in the status area of the desktop, as wide as what it shows. Where the area has none for it, all of this does
/// nothing. Thread: main.
class StatusItem {
public:
    enum class ImagePosition { none = 0, only, left, right };

    virtual ~StatusItem() = default;
    virtual void setImage(const std::optional<Image>& image) = 0;
    virtual void setImagePosition(ImagePosition position) = 0;
    /// Stands beside the image; UTF-8.
    virtual void setTitle(const std::string& title) = 0;
    /// What is told of it where there is no room for a title.
    virtual void setToolTip(const std::string& text) = 0;
    /// Whether it is drawn differently while its menu is open.
    virtual void setHighlights(bool highlights) = 0;
    /// The menu that opens when it is clicked.
    virtual void setMenu(const std::shared_ptr<Menu>& menu) = 0;
};

} // namespace brindle
