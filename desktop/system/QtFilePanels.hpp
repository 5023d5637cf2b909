#pragma once

#include "platform/FilePanels.hpp"

namespace brindle::desktop {

/// File dialogs: the desktop's own where it has one and nothing is to be added to it. Thread: main.
class QtFilePanels : public FilePanels {
public:
    void beginOpenPanel(std::string_view fileType, Opened opened) override;
    void beginSavePanel(const SavePanel& panel, Saved saved) override;
};

} // namespace brindle::desktop
