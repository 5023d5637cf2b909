#pragma once

#include "desktop/toolkit/WebPluginInterface.hpp"

#include <QObject>

namespace brindle::desktop {

/// The root object of the plugin. Thread: main.
class WebPlugin : public QObject, public WebPluginInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.brindle.WebPlugin/1")
    Q_INTERFACES(brindle::desktop::WebPluginInterface)

public:
    /// Before the first page, and before anything else of the engine.
    WebPlugin();

    WebPageView* makePageView(QWidget* parent) override;
};

} // namespace brindle::desktop
