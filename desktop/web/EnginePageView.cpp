#include "desktop/web/EnginePageView.hpp"

#include "desktop/web/EngineProfile.hpp"

#include <QWebEngineHistory>
#include <QWebEngineScript>
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

} // namespace

EnginePageView::EnginePageView(QWidget* parent) : _view(new EngineView(parent)), _page(&_view->enginePage()) {
    // What shows before the first picture of the page: no white flash by dark.
    _page->setBackgroundColor(_view->palette().color(QPalette::Base));
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
        if (!_page->hasRefused())
            setProgress(percent / wholePercent);
    });
    connect(_page, &QWebEnginePage::titleChanged, this, [this] {
        if (_events.titleDidChange)
            _events.titleDidChange();
    });
    connect(_page, &QWebEnginePage::renderProcessTerminated, this, [this](QWebEnginePage::RenderProcessTerminationStatus status, int) {
        _timeout.stop();
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
    _page->setOwnAddress(url);
    _page->addOwnPage(url);
    _page->load(url);
}

void EnginePageView::load(const QUrl& url, double seconds) {
    _page->setOwnAddress(url);
    _timeout.start(static_cast<int>(seconds * millisecondsPerSecond));
    _page->load(url);
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
