#include "desktop/web/EnginePageView.hpp"

#include "desktop/toolkit/Palettes.hpp"
#include "desktop/web/EngineProfile.hpp"
#include "desktop/web/LocalAddress.hpp"

#include <QEvent>
#include <QWebEngineHistory>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr double wholePercent = 100.0;
constexpr double millisecondsPerSecond = 1000.0;

/// Runs beside the page's own scripts, which can't see or change it.
constexpr quint32 scriptWorld = QWebEngineScript::ApplicationWorld;

/// A page that is still to come, or is not read to its end yet, is nowhere near its end.
constexpr const char* scrollScript = R"((function (down, isLoaded) {
    const root = document.scrollingElement || document.documentElement;
    const before = root.scrollTop;
    root.scrollBy({ top: (down ? 1 : -1) * Math.max(40, window.innerHeight - 60), behavior: "instant" });
    const isRead = isLoaded || (document.readyState !== "loading" && location.protocol !== "about:");
    return isRead && root.scrollTop === before;
})(%1, %2))";

/// What the engine was told of the desktop's colours at its start it tells all pages until its end; those that the program makes are told
/// by this, before their first picture. It runs when a document begins, which has no root yet, and on one that is shown.
constexpr const char* colorScript = R"((function (isOwn, scheme) {
    const show = () => document.documentElement && (document.documentElement.dataset.colorScheme = scheme);
    if (isOwn && !show())
        new MutationObserver((changes, observer) => show() && observer.disconnect()).observe(document, { childList: true });
})(location.protocol === "%1:", "%2"))";

bool isOwnPage(const QUrl& url) {
    return url.scheme() == QLatin1String(PageScheme::name);
}

} // namespace

EnginePageView::EnginePageView(QWidget* parent) : _view(new EngineView(parent)), _page(&_view->enginePage()) {
    _view->installEventFilter(this);
    showColors();
    _timeout.setSingleShot(true);
    connect(&_timeout, &QTimer::timeout, this, [this] {
        if (_page)
            _page->triggerAction(QWebEnginePage::Stop);
    });
    connectPage();
}

EnginePageView::~EnginePageView() {
    _events = {};
    for (const QUrl& each : _ownPages)
        EngineProfile::shared().pages().remove(each);
    if (_page)
        _page->setAllowsNavigation({});
}

void EnginePageView::connectPage() {
    connect(_page, &QWebEnginePage::loadStarted, this, &EnginePageView::didStart);
    connect(_page, &QWebEnginePage::loadFinished, this, &EnginePageView::didFinish);
    connect(_page, &QWebEnginePage::loadProgress, this, [this](int percent) {
        if (_timeout.isActive())
            _timeout.start();
        // All of a page is told before its end is, which may be after the next one has begun.
        if (!_page->hasRefused() && percent < wholePercent)
            setProgress(percent / wholePercent);
    });
    connect(_page, &QWebEnginePage::urlChanged, this, &EnginePageView::showBackground);
    connect(_page, &QWebEnginePage::titleChanged, this, [this] {
        if (_events.titleDidChange)
            _events.titleDidChange();
    });
    connect(_page, &QWebEnginePage::renderProcessTerminated, this, [this](QWebEnginePage::RenderProcessTerminationStatus status, int) {
        _timeout.stop();
        setProgress(1);
        if (status != QWebEnginePage::NormalTerminationStatus && _events.processDidTerminate)
            _events.processDidTerminate();
    });
}

void EnginePageView::setEvents(Events events) {
    _events = std::move(events);
    _page->setAllowsNavigation(_events.allowsNavigation);
}

void EnginePageView::setHtml(const QByteArray& html) {
    const QUrl url = _ownPages.emplace_back(EngineProfile::shared().pages().add(html));
    _page->addOwnPage(url);
    _page->load(url);
}

bool EnginePageView::load(const QUrl& url, const QString& host, double seconds) {
    if (!isNetworkAddress(url) || (isLocalHost(url.host()) && url.host() != host))
        return false;
    _page->addOwnAddress(url);
    _timeout.start(static_cast<int>(seconds * millisecondsPerSecond));
    _page->load(url);
    return true;
}

bool EnginePageView::eventFilter(QObject* object, QEvent* event) {
    if (_page && event->type() == QEvent::PaletteChange)
        showColors();
    return QObject::eventFilter(object, event);
}

/// For the page that is shown, which keeps its place, and for all to come.
void EnginePageView::showColors() {
    const QString name = QStringLiteral("colors");
    const QString scheme = isDark(_view->palette()) ? QStringLiteral("dark") : QStringLiteral("light");
    QWebEngineScript script;
    script.setName(name);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(scriptWorld);
    script.setSourceCode(QString::fromLatin1(colorScript).arg(QString::fromLatin1(PageScheme::name), scheme));
    for (const QWebEngineScript& old : _page->scripts().find(name))
        _page->scripts().remove(old);
    _page->scripts().insert(script);
    if (!_page->url().isEmpty())
        _page->runJavaScript(script.sourceCode(), scriptWorld);
    showBackground();
}

/// What is behind a page, and all there is before its first picture: no white flash by dark. Pages of the web count on white.
void EnginePageView::showBackground() {
    const bool isOfTheWeb = !_page->url().isEmpty() && !isOwnPage(_page->url());
    _page->setBackgroundColor(isOfTheWeb ? QColor(Qt::white) : _view->palette().color(QPalette::Base));
}

void EnginePageView::reload() {
    _page->triggerAction(QWebEnginePage::Reload);
}

bool EnginePageView::canGoBack() const {
    return _page && _page->history()->canGoBack();
}

bool EnginePageView::canGoForward() const {
    return _page && _page->history()->canGoForward();
}

QString EnginePageView::title() const {
    // A page without a title is called by its address, which means nothing to a person.
    const QString title = _page ? _page->title() : QString();
    return title.startsWith(QString::fromLatin1(PageScheme::name)) || title == QLatin1String("about:blank") ? QString() : title;
}

void EnginePageView::didStart() {
    // A refused link begins and ends a load that never was.
    if (_page->hasRefused())
        return;
    setProgress(0);
    if (_events.didStart)
        _events.didStart();
}

void EnginePageView::didFinish(bool isLoaded) {
    _timeout.stop();
    setProgress(1);
    if (isLoaded && _events.didFinish)
        _events.didFinish();
}

void EnginePageView::setProgress(double progress) {
    _progress = progress;
    if (_events.progressDidChange)
        _events.progressDidChange();
}

void EnginePageView::scrollPage(bool down, std::function<void(bool wasAtEnd)> done) {
    const auto literal = [](bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); };
    const QString script = QString::fromLatin1(scrollScript).arg(literal(down), literal(_progress >= 1));
    // The engine also answers, with nothing, when the page is destroyed.
    _page->runJavaScript(script, scriptWorld, [self = QPointer(this), done = std::move(done)](const QVariant& result) {
        if (self && done)
            done(result.toBool());
    });
}

} // namespace brindle::desktop
