#include "desktop/windows/WebPluginLoader.hpp"

#include "desktop/toolkit/Text.hpp"
#include "foundation/Console.hpp"

#include <QCoreApplication>
#include <QPluginLoader>

namespace brindle::desktop {

std::filesystem::path WebPluginLoader::standardFile() {
    const std::filesystem::path programs = fromQString(QCoreApplication::applicationDirPath());
    return programs.parent_path() / "lib" / "brindle" / "brindle-web.so";
}

void WebPluginLoader::prepareEnvironment() {
    qputenv(webEngineSwitches, qgetenv(webEngineSwitches));
}

WebPluginInterface* WebPluginLoader::plugin() {
    if (_hasTried)
        return _plugin;
    _hasTried = true;
    QPluginLoader loader(toQString(_file.string()));
    // The engine warns that it was not there when the program started, which is what is wanted.
    const QtMessageHandler handler = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    _plugin = qobject_cast<WebPluginInterface*>(loader.instance());
    qInstallMessageHandler(handler);
    if (!_plugin)
        Console::print("Could not load the web view: " + fromQString(loader.errorString()));
    return _plugin;
}

} // namespace brindle::desktop
