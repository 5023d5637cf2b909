#include "desktop/windows/ArticlePane.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "desktop/toolkit/Binders.hpp"
#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/ElidedLabel.hpp"
#include "desktop/windows/RoomyButton.hpp"
#include "desktop/windows/SymbolButton.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QHBoxLayout>
#include <QPainter>
#include <QProgressBar>
#include <QStyle>
#include <QUrl>
#include <utility>

namespace brindle::desktop {

namespace {

// In points.
constexpr int margin = 6;
constexpr int progressHeight = 3;

/// A thin line that grows: nothing at all before anything is loaded.
class ProgressLine : public QProgressBar {
public:
    using QProgressBar::QProgressBar;

protected:
    void paintEvent(QPaintEvent*) override {
        const int part = QStyle::sliderPositionFromValue(minimum(), maximum(), value(), width());
        const QRect line(0, 0, part, height());
        QPainter(this).fillRect(QStyle::visualRect(layoutDirection(), rect(), line), palette().color(QPalette::Highlight));
    }
};

QProgressBar* makeProgressBar(QWidget* parent) {
    auto* const bar = new ProgressLine(parent);
    bar->setTextVisible(false);
    bar->setFixedHeight(progressHeight);
    QSizePolicy policy = bar->sizePolicy();
    // The page must not jump when the bar goes.
    policy.setRetainSizeWhenHidden(true);
    bar->setSizePolicy(policy);
    bar->setAccessibleName(toQString(localized("Loading")));
    return bar;
}

/// Empty where the feed is gone.
QString feedHost(const FeedsBrowserArticleViewController& controller) {
    const auto article = controller.article();
    const auto feed = article ? article->feedItem.lock() : nullptr;
    return feed ? QUrl(toQString(feed->url().absoluteString())).host() : QString();
}

} // namespace

ArticlePane::ArticlePane(std::shared_ptr<WebPluginLoader> loader, QWidget* parent)
    : QWidget(parent), _container(std::make_shared<ArticleContainer>(this, std::move(loader))) {}

void ArticlePane::bind(FeedsBrowserArticleViewController& controller) {
    auto* const navigation = new QWidget(this);
    auto* const navigationRow = new QHBoxLayout(navigation);
    navigationRow->setContentsMargins(0, 0, 0, 0);
    navigationRow->setSpacing(0);
    auto* const back = new SymbolButton("back", localized("Back"), navigation);
    auto* const forward = new SymbolButton("forward", localized("Forward"), navigation);
    navigationRow->addWidget(back);
    navigationRow->addWidget(forward);
    auto* const title = new ElidedLabel(this);
    auto* const save = new RoomyButton(this);
    auto* const actions = new SymbolButton("more", localized("Article actions"), this);
    QProgressBar* const progress = makeProgressBar(this);

    auto* const row = new QHBoxLayout;
    row->setContentsMargins(margin, margin, margin, margin / 2);
    row->addWidget(navigation);
    row->addWidget(title, 1);
    row->addWidget(save);
    row->addWidget(actions);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row);
    column->addWidget(progress);
    column->addWidget(_container->widget(), 1);

    _container->setFeedHost([&controller] { return feedHost(controller); });
    desktop::bind(controller.navigationContainerView, navigation);
    desktop::bind(controller.goBackButton, back, [&controller] { controller.goBack(); });
    desktop::bind(controller.goForwardButton, forward, [&controller] { controller.goForward(); });
    desktop::bind(controller.titleLabel, title);
    desktop::bind(controller.saveButton, save, [&controller] { controller.handleSave(); });
    desktop::bind(controller.progressIndicator, progress);
    desktop::bind(controller.actionsPopUpButton, actions, [&controller] {
        if (const auto& item = controller.actionsPopUpButton.selectedItem())
            controller.perform({item->action(), item});
    });
}

} // namespace brindle::desktop
