#include "desktop/windows/ArticlePreviewView.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "tests/shell/AppDelegateFixture.hpp"

#include <QPlainTextEdit>

namespace brindle::desktop {

class ArticlePreviewViewTest : public AppDelegateTest {
protected:
    /// The text view of an article with that content.
    QPlainTextEdit& show(const std::string& content) {
        item = makeItem("Ants", {"One"});
        const auto& article = item->articles().front();
        article->entry->setContent(std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::raw, content));
        preview = QtArticlePreviewFactory(environment.defaults).makePreview(article);
        preview->fill();
        return *static_cast<QPlainTextEdit*>(std::dynamic_pointer_cast<WidgetView>(preview->view())->widget());
    }

    std::shared_ptr<FeedItem> item;
    std::shared_ptr<ArticlePreviewController> preview;
};

TEST_F(ArticlePreviewViewTest, ShowsTheTextWithoutTags) {
    EXPECT_EQ(show("<p>An <b>ant</b> &amp; a bee</p>").toPlainText().toStdString(), "An ant & a bee");
}

TEST_F(ArticlePreviewViewTest, IsAsHighAsItsTextButNoHigherThanALimit) {
    const int shortHeight = show("<p>short</p>").height();
    std::string words;
    for (int i = 0; i < 60; ++i)
        words += "word ";
    const int longHeight = show(words).height();
    for (int i = 0; i < 2000; ++i)
        words += "word ";
    const int longestHeight = show(words).height();
    EXPECT_LT(shortHeight, longHeight);
    EXPECT_LT(longHeight, longestHeight);
    EXPECT_EQ(show(words + words).height(), longestHeight);
}

TEST_F(ArticlePreviewViewTest, TakesTheSizeOfThePreferences) {
    set(preference::useCustomFontSizeForPreview, true);
    set(preference::customFontSizeForPreview, 21.0);
    EXPECT_EQ(show("<p>text</p>").font().pointSizeF(), 21);
}

TEST_F(ArticlePreviewViewTest, IsForReadingAlone) {
    EXPECT_TRUE(show("<p>text</p>").isReadOnly());
    EXPECT_NE(show("<p>text</p>").accessibleName(), QString());
}

} // namespace brindle::desktop
