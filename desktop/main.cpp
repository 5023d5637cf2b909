#include "desktop/Desktop.hpp"
#include "desktop/DisplayServer.hpp"
#include "desktop/toolkit/Images.hpp"
#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/WebPluginLoader.hpp"
#include "foundation/FileLock.hpp"
#include "foundation/FileManager.hpp"
#include "foundation/FormattedText.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/UserLocale.hpp"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QTranslator>
#include <array>
#include <csignal>
#include <iostream>

namespace brindle::desktop {
namespace {

namespace fs = std::filesystem;

constexpr int failed = 1;
constexpr int wrongUsage = 2;

QStringList toQStringList(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts)
        list.append(toQString(text));
    return list;
}

void loadTexts(const fs::path& resources) {
    // Without their tables the program shows the keys, and works all the same.
    static_cast<void>(LocalizedStrings::load(resources / "localisation", {userLocale()}));
    auto* const own = new QTranslator(qApp);
    if (own->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(own);
}

int refuse(const std::string& text) {
    std::cerr << "brindle: " << text << '\n';
    QMessageBox box(QMessageBox::Critical, QGuiApplication::applicationDisplayName(), toQString(text));
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return failed;
}

/// Has the program that runs already do what this one was asked for; false where it doesn't answer.
bool handOver(const SingleInstance& instance, const Options& options, const QVariantMap& platformData) {
    const QStringList uris = toQStringList(options.uris());
    // A start at login beside a session that was restored: there is nothing to show.
    const bool isForAction = uris.isEmpty() && (options.background || options.showsFeedsBrowser);
    if (!isForAction && !instance.handOver(uris, platformData))
        return false;
    return !options.showsFeedsBrowser || instance.handOverAction(QLatin1String(SingleInstance::feedsBrowserAction), platformData);
}

/// Tells of the files that can't be opened, each in a line of its own; empty where all can.
std::string takeMissingFiles(Options& options) {
    std::string text;
    for (const fs::path& file : options.takeMissingFiles())
        text += (text.empty() ? "" : "\n") + formatted(localized("This file doesn't exist: %@"), {file.string()});
    return text;
}

int run(Options options, const QVariantMap& platformData) {
    const fs::path programs = fromQString(QCoreApplication::applicationDirPath());
    const fs::path resources = programs.parent_path() / "share" / "brindle";
    loadTexts(resources);
    if (const std::string missing = takeMissingFiles(options); !missing.empty()) {
        if (options.uris().empty() && !options.showsFeedsBrowser)
            return refuse(missing);
        std::cerr << "brindle: " << missing << '\n';
    }
    SingleInstance instance(QDBusConnection::sessionBus(), toQString(options.instanceName()));
    if (!instance.acquire())
        return handOver(instance, options, platformData) ? 0 : refuse(localized("Brindle runs already, and doesn't answer."));
    const fs::path support = options.supportDirectory ? *options.supportDirectory : AppDelegate::applicationSupportDirectory();
    // A folder that can't be written to is no reason not to read.
    static_cast<void>(FileManager::createDirectory(support));
    const auto lock = FileLock::tryLock(support / ".lock");
    if (lock && !*lock)
        return refuse(localized("The library is in use by another program."));
    return Desktop(options, support, resources, instance).run();
}

int start(int argc, char** argv) {
    std::error_code unknownFolder;
    const auto options = Options::parse({argv + std::min(argc, 1), argv + argc}, fs::current_path(unknownFolder));
    if (!options) {
        std::cerr << "brindle: " << options.error() << "\n\n" << Options::usage();
        return wrongUsage;
    }
    if (options->help || options->version) {
        std::cout << (options->help ? Options::usage() : "brindle " BRINDLE_VERSION "\n");
        return 0;
    }
    for (const std::string& word : options->skipped)
        std::cerr << "brindle: \"" << word << "\" is neither an address nor an OPML file\n";
    std::optional<std::string> platform = displayserver::platform();
    if (!platform) {
        std::cerr << "brindle: " << displayserver::refusal() << " brindle-cli works without one.\n";
        return failed;
    }
    // Before the toolkit takes it from the environment.
    const QVariantMap platformData = SingleInstance::platformData();
    // A reader of the console that went away is no reason to end.
    std::signal(SIGPIPE, SIG_IGN);
    WebPluginLoader::prepareEnvironment();
    std::string platformOption = "-platform";
    std::array<char*, 4> toolkitWords = {argv[0], platformOption.data(), platform->data(), nullptr};
    int toolkitWordCount = platform->empty() ? 1 : 3;
    const QApplication application(toolkitWordCount, toolkitWords.data());
    QApplication::setApplicationName(QStringLiteral("brindle"));
    QApplication::setApplicationDisplayName(QStringLiteral("Brindle"));
    QApplication::setApplicationVersion(QStringLiteral(BRINDLE_VERSION));
    QApplication::setDesktopFileName(QLatin1String(SingleInstance::standardName));
    QApplication::setWindowIcon(images::icon(Image::named("brindle")));
    QApplication::setQuitOnLastWindowClosed(false);
    return run(*options, platformData);
}

} // namespace
} // namespace brindle::desktop

int main(int argc, char** argv) {
    return brindle::desktop::start(argc, argv);
}
