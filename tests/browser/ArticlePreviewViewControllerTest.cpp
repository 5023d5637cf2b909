#include "Brindle/browser/ArticlePreviewViewController.hpp"
#include "tests/browser/BrowserFixture.hpp"

namespace brindle {
namespace {

class ArticlePreviewViewControllerTest : public BrowserTest {
protected:
    static inline const Font systemFont = {"", 13};

    ArticlePreviewViewController controller{defaults, systemFont};
    std::shared_ptr<FeedItem> item = makeItem("Feed", {"one"});
};

TEST_F(ArticlePreviewViewControllerTest, ShowsTheContentWithoutItsTags) {
    item->articles().front()->entry->content()->setContent("<p>Some <b>text</b></p>");
    controller.feedItemArticle = item->articles().front();
    controller.load();
    EXPECT_EQ(controller.textView.string(), "Some text");
    EXPECT_TRUE(controller.textView.isRichText());
    EXPECT_TRUE(controller.textView.usesTextColor());
    EXPECT_EQ(controller.textView.font(), systemFont);
}

TEST_F(ArticlePreviewViewControllerTest, IsEmptyWithoutArticleOrContent) {
    controller.textView.setString("before");
    controller.load();
    EXPECT_EQ(controller.textView.string(), "");
    item->articles().front()->entry->setContent(nullptr);
    controller.feedItemArticle = item->articles().front();
    controller.textView.setString("before");
    controller.load();
    EXPECT_EQ(controller.textView.string(), "");
    EXPECT_EQ(controller.textView.font(), systemFont);
}

TEST_F(ArticlePreviewViewControllerTest, TakesTheSizeThatThePreferencesWant) {
    set(preference::useCustomFontSizeForPreview, true);
    set(preference::customFontSizeForPreview, 20.0);
    controller.textView.setFont({"Serif", 13});
    controller.load();
    EXPECT_EQ(controller.textView.font(), (Font{"Serif", 20}));
}

TEST_F(ArticlePreviewViewControllerTest, SetsTheFontAlsoWithoutArticle) {
    controller.textView.setFont({"Serif", 9});
    controller.load();
    EXPECT_EQ(controller.textView.font(), systemFont);
    set(preference::useCustomFontSizeForPreview, true);
    set(preference::customFontSizeForPreview, 20.0);
    controller.load();
    EXPECT_EQ(controller.textView.font(), (Font{"", 20}));
}

TEST_F(ArticlePreviewViewControllerTest, LeavesAFontOfThatSizeAlone) {
    set(preference::useCustomFontSizeForPreview, true);
    set(preference::customFontSizeForPreview, 20.0);
    controller.textView.setFont({"Serif", 20});
    int changes = 0;
    const auto token = controller.textView.observe([&] { ++changes; });
    controller.load();
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace brindle
