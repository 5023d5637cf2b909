#include "cli/ArticlePageCommand.hpp"

#include "Brindle/browser/ArticlePage.hpp"
#include "Brindle/browser/FeedsBrowserArticleViewController.hpp"
#include "cli/ArticleList.hpp"
#include "cli/Library.hpp"
#include "cli/PreferenceStore.hpp"
#include "cli/ResourceFolder.hpp"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

namespace brindle {

namespace {

/// What a web view was given last.
struct Page {
    std::optional<std::string> html;
    std::optional<std::string> url;
};

/// Notes down what would be loaded.
class NotedWebView : public WebView {
public:
    explicit NotedWebView(std::shared_ptr<Page> page) : _page(std::move(page)) {}

    void setDelegate(std::weak_ptr<WebViewDelegate>) override {}
    void setHidden(bool) override {}
    void loadHTMLString(const std::string& html, const std::optional<URL>&) override { *_page = {html, std::nullopt}; }
    void load(const WebRequest& request) override { *_page = {std::nullopt, request.url.absoluteString()}; }
    bool canGoBack() const override { return false; }
    bool canGoForward() const override { return false; }
    void goBack() override {}
    void goForward() override {}
    double estimatedProgress() const override { return 1; }
    std::string title() const override { return {}; }
    void removeFromSuperview() override {}

private:
    std::shared_ptr<Page> _page;
};

class NotedWebContainer : public WebContainerView {
public:
    std::shared_ptr<WebView> addWebView() override { return std::make_shared<NotedWebView>(page); }

    const std::shared_ptr<Page> page = std::make_shared<Page>();
};

tl::expected<std::shared_ptr<FeedItemArticle>, CommandError> findArticle(
    Library& library, const std::string& feedName, const std::string& key) {
    const auto feed = library.feed(feedName);
    if (!feed)
        return tl::unexpected(feed.error());
    library.bringBack({*feed});
    const Articles articles = library.manager().articles(ArticleStateFilter::any, *feed);
    const auto found =
        std::find_if(articles.begin(), articles.end(), [&](const auto& article) { return article->articleStateKey() == key; });
    if (found == articles.end())
        return failure("no article of the feed has the key '" + key + "'");
    return *found;
}

/// What an article view loads of the article; nothing at all for one without content.
Page pageOf(const std::shared_ptr<FeedItemArticle>& article, const std::shared_ptr<FeedsManager>& feedsManager,
    const std::shared_ptr<UserDefaults>& defaults, const std::filesystem::path& resources) {
    FeedsBrowserEnvironment environment;
    environment.feedsManager = feedsManager;
    environment.savedArticlesManager =
        std::make_shared<SavedArticlesManager>(feedsManager->supportDirectory(), feedsManager->environment());
    environment.defaults = defaults;
    environment.resources = resources;
    const auto container = std::make_shared<NotedWebContainer>();
    const auto controller = FeedsBrowserArticleViewController::make(std::move(environment), container, true);
    controller->showArticle(article);
    return *container->page;
}

void print(const CommandContext& context, const Page& page) {
    nlohmann::ordered_json json = nlohmann::ordered_json::object();
    json["html"] = page.html ? nlohmann::ordered_json(*page.html) : nlohmann::ordered_json();
    json["url"] = page.url ? nlohmann::ordered_json(*page.url) : nlohmann::ordered_json();
    if (context.settings.json)
        context.output.json(json);
    else if (page.html || page.url)
        context.output.document(page.html ? *page.html : *page.url);
}

CommandResult run(const CommandContext& context) {
    const auto name = context.arguments.value("feed");
    const auto key = context.arguments.value("key");
    if (!name || !key)
        return wrongUsage("article: give --feed and --key");
    const auto defaults = openPreferences(context.settings);
    if (!defaults)
        return tl::unexpected(defaults.error());
    const auto library = Library::open(context.settings, Library::Purpose::reading, Library::Network::none);
    if (!library)
        return tl::unexpected(library.error());
    const auto article = findArticle(**library, *name, *key);
    if (!article)
        return tl::unexpected(article.error());
    const std::filesystem::path resources = resourceFolder();
    if (articlePageTemplate(resources).empty())
        return failure("the template of article pages can't be read in " + resources.string());
    print(context, pageOf(*article, (*library)->sharedManager(), *defaults, resources));
    return ExitStatus::done;
}

} // namespace

Command articlePageCommand() {
    return {"article", "--feed UUID --key KEY",
        "Prints the page that the article view would load: the stored text, or the address of the original page where the preferences want "
        "that. An article without content has no page.",
        {{"feed", "UUID", "the feed, or the group of feeds, that the article is in"}, {"key", "KEY", "the article's key"}}, 0, 0, run};
}

} // namespace brindle
