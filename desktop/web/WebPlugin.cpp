#include "desktop/web/WebPlugin.hpp"

#include "desktop/toolkit/Palettes.hpp"
#include "desktop/web/EnginePageView.hpp"
#include "desktop/web/PageScheme.hpp"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QOpenGLContext>

QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
Q_GUI_EXPORT QOpenGLContext* qt_gl_global_share_context();
QT_END_NAMESPACE

namespace brindle::desktop {

namespace {

/// For the engine's start.
void addSwitch(const QByteArray& text) {
    qputenv(webEngineSwitches, (qgetenv(webEngineSwitches) + ' ' + text).trimmed());
}

/// The engine doesn't ask the desktop by itself, and takes what it tells pages of the web at its start alone.
void followColorScheme() {
    if (isDark(QGuiApplication::palette()))
        addSwitch("--force-dark-mode");
}

/// The engine needs one graphics context that all others share with. The application object would make it at the start of the program, and
/// with it load the graphics drivers, which are larger than the program.
void shareGraphics() {
    if (qt_gl_global_share_context())
        return;
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    auto* const context = new QOpenGLContext;
    if (!context->create())
        return delete context;
    qt_gl_set_global_share_context(context);
    qAddPostRoutine([] {
        delete qt_gl_global_share_context();
        qt_gl_set_global_share_context(nullptr);
    });
}

/// Private Network Access, a draft of the Web Incubator CG: also judges by the address that a connection has in the end, whatever names and
/// redirects led to it. It leaves sockets out.
void blockPrivateNetwork() {
    addSwitch("--enable-features=BlockInsecurePrivateNetworkRequestsFromUnknown,BlockInsecurePrivateNetworkRequestsForNavigations");
}

/// Nothing judges where these two connect to: workers that belong to no page, and sessions of the WebTransport draft of the W3C.
void blockUnjudgedConnections() {
    addSwitch("--disable-blink-features=SharedWorker,WebTransport");
}

} // namespace

WebPlugin::WebPlugin() {
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext=false"));
    shareGraphics();
    followColorScheme();
    blockPrivateNetwork();
    blockUnjudgedConnections();
    PageScheme::registerScheme();
}

WebPageView* WebPlugin::makePageView(QWidget* parent) {
    return new EnginePageView(parent);
}

} // namespace brindle::desktop
