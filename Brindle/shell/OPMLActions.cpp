#include "Brindle/shell/OPMLActions.hpp"

#include "Brindle/opml/FeedsOPMLReader.hpp"
#include "Brindle/opml/FeedsOPMLWriter.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"
#include "foundation/Text.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>

namespace brindle {

namespace fs = std::filesystem;

namespace {

using ImportMode = LibraryHelper::ImportMode;

constexpr std::string_view fileType = "opml";
constexpr std::size_t withGroupsOption = 1;
constexpr int cancelReturn = Alert::firstButtonReturn + 2;

bool isOPML(const fs::path& file) {
    return text::lowercased(file.extension().string()) == "." + std::string(fileType);
}

} // namespace

void OPMLActions::openFiles(const std::vector<fs::path>& files) {
    assertMainThread();
    std::vector<fs::path> opml;
    std::copy_if(files.begin(), files.end(), std::back_inserter(opml), isOPML);
    if (!opml.empty())
        read(std::move(opml), ImportMode::merge);
}

void OPMLActions::read(std::vector<fs::path> files, ImportMode mode) {
    FeedsOPMLReader::make(_feedsManager->environment())
        ->read(std::move(files), [feedsManager = std::weak_ptr(_feedsManager), mode](const FeedsOPMLReader::Feeds& feeds) {
            if (const auto manager = feedsManager.lock())
                LibraryHelper::importFeeds(*manager, feeds, mode);
        });
}

void OPMLActions::showImport() {
    assertMainThread();
    if (_feedsManager->feeds.empty())
        return showOpenPanel(ImportMode::merge);
    const Alert question = {localized("addReplaceDialogTitle"), localized("addReplaceDialogMessage"),
        {localized("addReplaceDialogReplaceButton"), localized("addReplaceDialogOKButton"), localized("addReplaceDialogCancelButton")}};
    _alerts->runModal(question, [actions = weak_from_this()](int response) {
        if (const auto self = actions.lock(); self && response != cancelReturn)
            self->showOpenPanel(response == Alert::firstButtonReturn ? ImportMode::replace : ImportMode::merge);
    });
}

void OPMLActions::showOpenPanel(ImportMode mode) {
    _panels->beginOpenPanel(fileType, [actions = weak_from_this(), mode](const std::optional<fs::path>& file) {
        const auto self = actions.lock();
        if (!self || !file)
            return;
        self->read({*file}, mode);
        // Kept as is: the file is still being read, so this stores the library as it was.
        self->_feedsManager->save();
    });
}

void OPMLActions::showExport() {
    assertMainThread();
    const FilePanels::SavePanel panel = {
        std::string(fileType), "Brindle feeds.opml", {localized("Without Groups"), localized("With Groups")}};
    _panels->beginSavePanel(panel, [feedsManager = std::weak_ptr(_feedsManager)](const std::optional<fs::path>& file, std::size_t option) {
        if (const auto manager = feedsManager.lock(); manager && file)
            FeedsOPMLWriter::exportFeeds(manager->feeds, *file, option == withGroupsOption);
    });
}

} // namespace brindle
