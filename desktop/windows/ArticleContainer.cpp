#include "desktop/windows/ArticleContainer.hpp"

#include <QVBoxLayout>
#include <utility>

namespace brindle::desktop {

ArticleContainer::ArticleContainer(QWidget* parent, std::shared_ptr<WebPluginLoader> loader)
    : _place(new QWidget(parent)), _loader(std::move(loader)) {
    // The colour of pages, so that nothing flashes between two of them.
    _place->setBackgroundRole(QPalette::Base);
    _place->setAutoFillBackground(true);
    auto* const column = new QVBoxLayout(_place);
    column->setContentsMargins(0, 0, 0, 0);
}

std::shared_ptr<WebView> ArticleContainer::addWebView() {
    auto made = std::make_shared<ArticleWebView>(_place, _loader);
    made->setFeedHost(_feedHost);
    _shown = made;
    return made;
}

} // namespace brindle::desktop
