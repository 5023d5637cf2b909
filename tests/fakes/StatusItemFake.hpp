#pragma once

#include "platform/StatusItem.hpp"

#include <string>
#include <vector>

namespace brindle {

/// Logs each call, and keeps what was set last.
class StatusItemFake : public StatusItem {
public:
    void setImage(const std::optional<Image>& newImage) override {
        log.push_back("setImage " + (newImage ? newImage->name() : "none"));
        image = newImage;
    }
    void setImagePosition(ImagePosition position) override {
        log.push_back("setImagePosition " + std::to_string(static_cast<int>(position)));
    }
    void setTitle(const std::string& newTitle) override {
        log.push_back("setTitle " + newTitle);
        title = newTitle;
    }
    void setToolTip(const std::string& text) override {
        log.push_back("setToolTip " + text);
        toolTip = text;
    }
    void setHighlights(bool highlights) override { log.push_back(highlights ? "setHighlights true" : "setHighlights false"); }
    void setMenu(const std::shared_ptr<Menu>& newMenu) override {
        log.emplace_back("setMenu");
        menu = newMenu;
    }

    std::vector<std::string> log;
    std::optional<Image> image;
    std::string title;
    std::string toolTip;
    std::shared_ptr<Menu> menu;
};

} // namespace brindle
