#include "desktop/windows/ArticleWindow.hpp"

#include "desktop/windows/ArticlePane.hpp"

#include <QShortcut>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr QSize firstSize(820, 640); // points
constexpr std::string_view frameName = "ArticleWindow";

} // namespace

std::shared_ptr<ArticleWindow> ArticleWindow::make(const WindowEnvironment& windows, const std::shared_ptr<WebPluginLoader>& webPlugin,
    const FeedsBrowserEnvironment& environment, std::shared_ptr<FeedItemArticle> article) {
    std::shared_ptr<ArticleWindow> made(new ArticleWindow(windows, std::move(article)));
    made->load(webPlugin, environment);
    return made;
}

ArticleWindow::ArticleWindow(const WindowEnvironment& windows, std::shared_ptr<FeedItemArticle> article)
    : _article(std::move(article)), _window(windows) {}

void ArticleWindow::load(const std::shared_ptr<WebPluginLoader>& webPlugin, const FeedsBrowserEnvironment& environment) {
    auto* const pane = new ArticlePane(webPlugin, &_window.widget());
    _controller = FeedsBrowserArticleViewController::make(environment, pane->container(), true);
    _controller->viewDidLoad();
    pane->bind(*_controller);
    _window.widget().setCentralWidget(pane);
    _window.widget().resize(firstSize);
    _window.setFrameAutosaveName(frameName);
    _window.setFrameUsingName(frameName);
    _window.setHandlers({_controller});
    _window.setDelegate(weak_from_this());
    _window.setTitle(_article->entry->title);
    _titleToken = _controller->title.observe([this] { _window.setTitle(_controller->title.stringValue()); });
    for (const QKeySequence& keys : {QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::Key_Escape)})
        QObject::connect(new QShortcut(keys, &_window.widget()), &QShortcut::activated, &_window, [this] { _window.close(); });
    _controller->showArticle(_article);
}

void ArticleWindow::show() {
    _window.show();
}

void ArticleWindow::windowWillClose() {
    // Not within the event that closes it, which the window still has to take.
    QMetaObject::invokeMethod(
        &_window,
        [this] {
            if (const std::function<void()> told = onClose)
                told();
        },
        Qt::QueuedConnection);
}

} // namespace brindle::desktop
