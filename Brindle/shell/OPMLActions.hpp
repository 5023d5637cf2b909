#pragma once

#include "Brindle/library/FeedsManager.hpp"
#include "Brindle/shell/LibraryHelper.hpp"
#include "platform/Alert.hpp"
#include "platform/FilePanels.hpp"

#include <filesystem>
#include <memory>
#include <utility>
#include <vector>

namespace brindle {

/// Takes subscriptions from OPML files that a person chooses or opens the program with, and writes them to one. Thread: main.
class OPMLActions : public std::enable_shared_from_this<OPMLActions> {
public:
    static std::shared_ptr<OPMLActions> make(
        std::shared_ptr<FeedsManager> feedsManager, std::shared_ptr<AlertPresenter> alerts, std::shared_ptr<FilePanels> panels) {
        return std::shared_ptr<OPMLActions>(new OPMLActions(std::move(feedsManager), std::move(alerts), std::move(panels)));
    }

    /// Appends what is in those of the files that are OPML by their extensions.
    void openFiles(const std::vector<std::filesystem::path>& files);
    /// Asks whether to replace the library where there is one, then for a file.
    void showImport();
    void showExport();

private:
    OPMLActions(std::shared_ptr<FeedsManager> feedsManager, std::shared_ptr<AlertPresenter> alerts, std::shared_ptr<FilePanels> panels)
        : _feedsManager(std::move(feedsManager)), _alerts(std::move(alerts)), _panels(std::move(panels)) {}
    void showOpenPanel(LibraryHelper::ImportMode mode);
    void read(std::vector<std::filesystem::path> files, LibraryHelper::ImportMode mode);

    const std::shared_ptr<FeedsManager> _feedsManager;
    const std::shared_ptr<AlertPresenter> _alerts;
    const std::shared_ptr<FilePanels> _panels;
};

} // namespace brindle
