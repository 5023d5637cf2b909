#include "desktop/windows/ArticlePreviewView.hpp"

#include "desktop/toolkit/Binders.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <algorithm>
#include <utility>

namespace brindle::desktop {

namespace {

// In points.
constexpr int width = 360;
constexpr int minimumHeight = 60;
constexpr int maximumHeight = 240;

constexpr int measuredLetters = 4000; ///< more than the greatest height has room for

Font systemFont() {
    const QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    return {fromQString(font.family()), font.pointSizeF()};
}

QPlainTextEdit* makeText() {
    auto* const text = new QPlainTextEdit;
    text->setFrameShape(QFrame::StyledPanel);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->setTextInteractionFlags(Qt::NoTextInteraction);
    text->setFixedWidth(width);
    text->setFixedHeight(maximumHeight);
    text->setAccessibleName(toQString(localized("Preview")));
    return text;
}

} // namespace

ArticlePreviewView::ArticlePreviewView(std::shared_ptr<const UserDefaults> defaults, const std::shared_ptr<FeedItemArticle>& article)
    : _controller(std::move(defaults), systemFont()), _view(std::make_shared<WidgetView>(makeText())) {
    _controller.feedItemArticle = article;
    bind(_controller.textView, static_cast<QPlainTextEdit*>(_view->widget()));
}

void ArticlePreviewView::fill() {
    _controller.load();
    auto* const text = static_cast<QPlainTextEdit*>(_view->widget());
    if (!text)
        return;
    const int margin = static_cast<int>(text->document()->documentMargin()) + text->frameWidth();
    const QRect room(0, 0, width - 2 * margin, QWIDGETSIZE_MAX);
    const QRect needed = text->fontMetrics().boundingRect(room, Qt::TextWordWrap, text->toPlainText().left(measuredLetters));
    text->setFixedHeight(std::clamp(needed.height() + 2 * margin + 1, minimumHeight, maximumHeight));
}

} // namespace brindle::desktop
