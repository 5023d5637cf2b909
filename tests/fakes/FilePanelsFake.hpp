#pragma once

#include "platform/FilePanels.hpp"
#include "tests/fakes/CallLog.hpp"

namespace brindle {

/// Logs the panels, and answers each as a test has it.
class FilePanelsFake : public FilePanels {
public:
    explicit FilePanelsFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void beginOpenPanel(std::string_view fileType, Opened opened) override {
        log->push_back("openPanel " + std::string(fileType));
        opened(chosen);
    }
    void beginSavePanel(const SavePanel& panel, Saved saved) override {
        log->push_back("savePanel " + panel.fileType + " " + panel.proposedName);
        savePanel = panel;
        saved(chosen, option);
    }

    CallLog log;
    std::optional<std::filesystem::path> chosen; ///< absent: nothing is chosen
    std::size_t option = 0;
    std::optional<SavePanel> savePanel; ///< the last
};

} // namespace brindle
