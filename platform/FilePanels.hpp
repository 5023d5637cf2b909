#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// Lets a person choose files. A panel is a sheet on the key window, or free-standing where there is none, begins in no folder of the
/// program's choice, and is gone before its answer comes. Thread: main.
class FilePanels {
public:
    /// Absent where the person chose nothing.
    using Opened = std::function<void(const std::optional<std::filesystem::path>& file)>;
    /// `option` is the place of the one chosen among the panel's.
    using Saved = std::function<void(const std::optional<std::filesystem::path>& file, std::size_t option)>;

    /// What a panel for saving offers. Folders can be made in it.
    struct SavePanel {
        std::string fileType; ///< the extension, without its dot
        std::string proposedName;
        std::vector<std::string> options = {}; ///< what else to choose, one of them; the first is chosen already

        friend bool operator==(const SavePanel&, const SavePanel&) = default;
    };

    virtual ~FilePanels() = default;
    /// For one file with an extension, given without its dot.
    virtual void beginOpenPanel(std::string_view fileType, Opened opened) = 0;
    virtual void beginSavePanel(const SavePanel& panel, Saved saved) = 0;
};

} // namespace brindle
