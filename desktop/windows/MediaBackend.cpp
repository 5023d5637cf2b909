#include "desktop/windows/MediaBackend.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>

namespace brindle::desktop {

namespace {

constexpr const char* choice = "QT_MEDIA_BACKEND";

/// Empty for what is no plugin.
QString nameOf(const QPluginLoader& plugin) {
    return plugin.metaData()[QLatin1String("MetaData")][QLatin1String("Keys")][0].toString();
}

bool isLoadable(QPluginLoader& plugin) {
    const bool isLoaded = plugin.load();
    plugin.unload(); // unless the toolkit has it in use
    return isLoaded;
}

} // namespace

bool hasMediaBackend() {
    const QString chosen = qEnvironmentVariable(choice);
    QString found;
    bool hasBroken = false;
    const QStringList paths = QCoreApplication::libraryPaths();
    for (const QString& path : paths) {
        const QDir folder(path + QStringLiteral("/multimedia"));
        const QStringList files = folder.entryList(QDir::Files);
        for (const QString& file : files) {
            QPluginLoader plugin(folder.filePath(file));
            const QString name = nameOf(plugin);
            if (name.isEmpty() || (!chosen.isEmpty() && name != chosen))
                continue;
            if (isLoadable(plugin))
                found = name;
            else
                hasBroken = true;
        }
    }
    // It would choose by the names alone.
    if (hasBroken && chosen.isEmpty() && !found.isEmpty())
        qputenv(choice, found.toUtf8());
    return !found.isEmpty();
}

} // namespace brindle::desktop
