#include "desktop/Options.hpp"

#include "desktop/system/SingleInstance.hpp"
#include "desktop/toolkit/Text.hpp"

#include <QCryptographicHash>
#include <QUrl>
#include <algorithm>
#include <array>

namespace brindle::desktop {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view supportOption = "--support-dir";

bool hasScheme(const QString& word) {
    constexpr std::array<QLatin1String, 3> schemes = {QLatin1String("feed:"), QLatin1String("http:"), QLatin1String("https:")};
    for (const QLatin1String scheme : schemes) {
        if (word.startsWith(scheme, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

bool isOPML(const fs::path& file) {
    return toQString(file.extension().string()).compare(QLatin1String(".opml"), Qt::CaseInsensitive) == 0;
}

/// Absent for a URI that is no file of this machine.
std::optional<fs::path> localFile(const std::string& uri) {
    const QUrl url(toQString(uri));
    return url.isLocalFile() && url.host().isEmpty() ? std::optional(fs::path(fromQString(url.toLocalFile()))) : std::nullopt;
}

} // namespace

std::string_view Options::usage() {
    return "usage: brindle [OPTION…] [ADDRESS|FILE.opml…]\n"
           "\n"
           "  ADDRESS               a feed to subscribe to, or a page that has one (feed:, http:, https:)\n"
           "  FILE.opml             subscriptions to add\n"
           "  --background          start without a window, in the status area only\n"
           "  --show-feeds-browser  show the feeds browser\n"
           "  --support-dir DIR     keep library and preferences in DIR\n"
           "  --help                print this text\n"
           "  --version             print the version\n"
           "\n"
           "A program that runs already is handed the addresses and files, and what to show.\n";
}

tl::expected<Options, std::string> Options::parse(const std::vector<std::string>& words, const fs::path& folder) {
    Options options;
    bool areOptionsOver = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (areOptionsOver || !word.starts_with('-')) {
            const bool isURI = word.starts_with("file:") || hasScheme(toQString(word));
            if (!isURI && isOPML(word))
                options.files.push_back((folder / word).lexically_normal());
            else if (!isURI || !options.addURI(word))
                options.skipped.push_back(word);
            continue;
        }
        if (word == "--")
            areOptionsOver = true;
        else if (word == "--help" || word == "-h")
            options.help = true;
        else if (word == "--version")
            options.version = true;
        else if (word == "--background")
            options.background = true;
        else if (word == "--show-feeds-browser")
            options.showsFeedsBrowser = true;
        else if (word == supportOption && i + 1 < words.size() && !words[i + 1].empty())
            options.supportDirectory = (folder / words[++i]).lexically_normal();
        else if (word.starts_with(std::string(supportOption) + "=") && word.size() > supportOption.size() + 1)
            options.supportDirectory = (folder / word.substr(supportOption.size() + 1)).lexically_normal();
        else if (word == supportOption || word.starts_with(std::string(supportOption) + "="))
            return tl::unexpected(std::string(supportOption) + " needs a folder");
        else
            return tl::unexpected("unknown option \"" + word + "\"");
    }
    if (!options.skipped.empty() && options.uris().empty())
        return tl::unexpected("\"" + options.skipped.front() + "\" is neither an address nor an OPML file");
    return options;
}

std::string Options::instanceName() const {
    const std::string standard = SingleInstance::standardName;
    if (!supportDirectory)
        return standard;
    const QByteArray folder = QByteArray::fromStdString(supportDirectory->string());
    return standard + ".folder" + QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex().left(16).toStdString();
}

std::vector<std::string> Options::command(const std::string& program) const {
    std::vector<std::string> words = {program};
    if (supportDirectory)
        words.insert(words.end(), {std::string(supportOption), supportDirectory->string()});
    return words;
}

std::vector<std::string> Options::uris() const {
    std::vector<std::string> result = addresses;
    for (const fs::path& file : files)
        result.push_back(fromQString(QString::fromLatin1(QUrl::fromLocalFile(toQString(file.string())).toEncoded())));
    return result;
}

bool Options::addURI(const std::string& uri) {
    if (hasScheme(toQString(uri))) {
        addresses.push_back(uri);
        return true;
    }
    const auto file = localFile(uri);
    if (!file || !isOPML(*file))
        return false;
    files.push_back(*file);
    return true;
}

std::vector<fs::path> Options::takeMissingFiles() {
    std::error_code unknown;
    const auto isThere = [&](const fs::path& file) { return fs::exists(file, unknown); };
    const auto firstMissing = std::stable_partition(files.begin(), files.end(), isThere);
    std::vector<fs::path> missing(firstMissing, files.end());
    files.erase(firstMissing, files.end());
    return missing;
}

} // namespace brindle::desktop
