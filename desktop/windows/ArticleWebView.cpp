#include "desktop/windows/ArticleWebView.hpp"

#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr int margin = 8;                  // points
constexpr qsizetype longestText = 200'000; // of HTML, which is laid out while all else waits

/// Shows a text, and fetches nothing that it names.
class TextBrowser : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

protected:
    QVariant loadResource(int, const QUrl&) override { return QByteArray(""); }
};

/// As RFC 3986 has it: brackets are around the address of a host and nowhere else. Browsers let them stand in the rest of an address.
std::string strictAddress(const QUrl& url) {
    const auto beforeRest = QUrl::FullyEncoded | QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment;
    const QString host = url.toString(beforeRest);
    QString rest = url.toString(QUrl::FullyEncoded).mid(host.size());
    rest.replace(QLatin1Char('['), QLatin1String("%5B")).replace(QLatin1Char(']'), QLatin1String("%5D"));
    return fromQString(host + rest);
}

/// Stands where the original page would.
std::string pageOfLink(const std::string& address) {
    return QStringLiteral("<html><head><meta charset=\"utf-8\"><style>:root[data-color-scheme=\"dark\"] { color-scheme: dark; } "
                          "body { margin: 1.5em; font-family: sans-serif; }</style></head>"
                          "<body><p>%1</p><p><a href=\"%2\">%2</a></p></body></html>")
        .arg(toQString(localized("The original page can't be shown here.")).toHtmlEscaped(), toQString(address).toHtmlEscaped())
        .toStdString();
}

} // namespace

ArticleWebView::ArticleWebView(QWidget* place, std::shared_ptr<WebPluginLoader> loader)
    : _holder(new QWidget(place)), _loader(std::move(loader)) {
    auto* const column = new QVBoxLayout(_holder);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    if (QLayout* const layout = place->layout())
        layout->addWidget(_holder);
}

ArticleWebView::~ArticleWebView() {
    removeFromSuperview();
}

void ArticleWebView::removeFromSuperview() {
    // Who reads with the keyboard goes on reading in the view that comes next; until then the place has the keyboard.
    const QWidget* const focused = QApplication::focusWidget();
    if (_holder && focused && _holder->isAncestorOf(focused))
        _holder->parentWidget()->setFocus();
    _page.reset();
    if (!_holder)
        return;
    // It may be its own event that this answers.
    _holder->hide();
    _holder->deleteLater();
}

void ArticleWebView::setHidden(bool isHidden) {
    if (_holder)
        _holder->setHidden(isHidden);
}

void ArticleWebView::add(QWidget* content) {
    _holder->layout()->addWidget(content);
    content->show();
    if (_holder->parentWidget()->hasFocus())
        content->setFocus();
}

bool ArticleWebView::makePage() {
    if (_page || !_holder)
        return _page != nullptr;
    if (WebPluginInterface* const plugin = _loader->plugin()) {
        _page.reset(plugin->makePageView(_holder));
        _page->setEvents(events());
        add(_page->widget());
    }
    return _page != nullptr;
}

WebPageView::Events ArticleWebView::events() {
    const auto tell = [this](void (WebViewDelegate::*notice)()) {
        return [this, notice] {
            if (const auto delegate = _delegate.lock())
                (delegate.get()->*notice)();
        };
    };
    WebPageView::Events events;
    events.allowsNavigation = [this](WebPageView::Navigation type, const QUrl& url) {
        return allows(static_cast<NavigationAction::Type>(type), url);
    };
    events.didStart = [this, told = tell(&WebViewDelegate::didStartProvisionalNavigation)] {
        showReload(false);
        told();
    };
    events.didFinish = tell(&WebViewDelegate::didFinishNavigation);
    events.progressDidChange = tell(&WebViewDelegate::estimatedProgressDidChange);
    events.titleDidChange = tell(&WebViewDelegate::titleDidChange);
    events.processDidTerminate = [this] { showReload(true); };
    return events;
}

bool ArticleWebView::allows(NavigationAction::Type type, const QUrl& url) const {
    const auto delegate = _delegate.lock();
    return delegate && delegate->decidePolicy({type, URL::make(strictAddress(url))}) == NavigationPolicy::allow;
}

/// Made when it is first needed, in place of the page.
QTextBrowser& ArticleWebView::text() {
    if (!_text) {
        _text = new TextBrowser(_holder);
        _text->setOpenLinks(false);
        _text->setFrameShape(QFrame::NoFrame);
        _text->setAccessibleName(toQString(localized("Article")));
        QObject::connect(_text, &QTextBrowser::anchorClicked, _text, [this](const QUrl& url) {
            if (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"))
                allows(NavigationAction::Type::linkActivated, url);
        });
        add(_text);
    }
    return *_text;
}

void ArticleWebView::loadHTMLString(const std::string& html, const std::optional<URL>&) {
    const bool hasBegun = _page || _text;
    // An empty pane needs no engine.
    if (!_holder || (html.empty() && !hasBegun))
        return;
    if (makePage())
        return _page->setHtml(QByteArray(html.data(), static_cast<qsizetype>(html.size())));
    showText(toQString(html));
}

void ArticleWebView::load(const WebRequest& request) {
    if (!_holder)
        return;
    const QUrl url(toQString(request.url.absoluteString()), QUrl::StrictMode);
    if (makePage() && _page->load(url, _feedHost ? _feedHost() : QString(), request.timeoutInterval))
        return;
    loadHTMLString(pageOfLink(request.url.absoluteString()), std::nullopt);
}

/// It is there at once.
void ArticleWebView::showText(const QString& html) {
    text().setHtml(shortened(html, longestText));
    if (const auto delegate = _delegate.lock()) {
        delegate->estimatedProgressDidChange();
        delegate->didFinishNavigation();
    }
}

void ArticleWebView::goBack() {
    if (_page)
        _page->goBack();
}

void ArticleWebView::goForward() {
    if (_page)
        _page->goForward();
}

double ArticleWebView::estimatedProgress() const {
    if (_text)
        return 1;
    return _page ? _page->progress() : 0;
}

std::string ArticleWebView::title() const {
    return _page ? fromQString(_page->title()) : std::string();
}

void ArticleWebView::scrollPage(bool down, std::function<void(bool wasAtEnd)> done) {
    if (_page)
        return _page->scrollPage(down, std::move(done));
    QScrollBar* const bar = _text ? _text->verticalScrollBar() : nullptr;
    const int before = bar ? bar->value() : 0;
    if (bar)
        bar->setValue(before + (down ? bar->pageStep() : -bar->pageStep()));
    if (done)
        done(!bar || bar->value() == before);
}

void ArticleWebView::showReload(bool isShown) {
    if (!_holder || (!isShown && !_reload))
        return;
    if (!_reload) {
        _reload = new QWidget(_holder);
        auto* const row = new QHBoxLayout(_reload);
        row->setContentsMargins(margin, margin, margin, margin);
        auto* const message = new QLabel(toQString(localized("The page has stopped working.")), _reload);
        auto* const button = new QPushButton(toQString(localized("Reload")), _reload);
        row->addWidget(message, 1);
        row->addWidget(button);
        static_cast<QVBoxLayout*>(_holder->layout())->insertWidget(0, _reload);
        QObject::connect(button, &QPushButton::clicked, _reload, [this] {
            showReload(false);
            if (_page)
                _page->reload();
        });
    }
    _reload->setVisible(isShown);
    if (_page && _page->widget())
        _page->widget()->setVisible(!isShown);
}

} // namespace brindle::desktop
