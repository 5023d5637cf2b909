#pragma once

#include "Brindle/browser/FeedsBrowserEnvironment.hpp"
#include "Brindle/library/ArticleStateFilter.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/shell/ApplicationWindows.hpp"
#include "platform/Action.hpp"
#include "platform/Application.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brindle {

/// What a person does with feeds and articles from any menu or window. Where an action is about nothing, or about an object of another
/// class, it is about the whole library, but for those that say otherwise. Thread: main.
class ApplicationActions : public std::enable_shared_from_this<ApplicationActions> {
public:
    using Articles = std::vector<std::shared_ptr<FeedItemArticle>>;

    static std::shared_ptr<ApplicationActions> make(
        FeedsBrowserEnvironment environment, std::shared_ptr<Application> application, std::shared_ptr<ApplicationWindows> windows) {
        return std::shared_ptr<ApplicationActions>(
            new ApplicationActions(std::move(environment), std::move(application), std::move(windows)));
    }

    void markArticles(const Action& action, ArticleStateFilter state);
    /// In the user's web browser. Asks first where there are many.
    void openAllUnreadArticles(const Action& action);
    /// About an article, else nothing happens: plays it or opens it, and marks it read.
    void showArticle(const Action& action);
    /// About a feed or a group, else nothing happens: shows it in the feeds browser, or a feed's site in the user's web browser.
    void openFeed(const Action& action);
    /// Appends a separator to the top level.
    void newSeparator();
    void showFeedsBrowser();
    /// For windows that a person asked for.
    void activateIfHiddenInDock();
    /// Plays it under a title.
    void showEnclosure(const SyndicatedEnclosure& enclosure, const std::string& title);

private:
    ApplicationActions(
        FeedsBrowserEnvironment environment, std::shared_ptr<Application> application, std::shared_ptr<ApplicationWindows> windows)
        : _environment(std::move(environment)), _application(std::move(application)), _windows(std::move(windows)) {}

    void markFeed(const std::shared_ptr<Feed>& feed, ArticleStateFilter state);
    void openArticles(const Articles& articles);
    void openArticle(const std::shared_ptr<FeedItemArticle>& article);
    /// Whether the program's own browser opens it; the Shift key inverts what the preference says.
    bool opensInBrowser(std::string_view preferenceKey) const;
    void revealInFeedsBrowser(const std::shared_ptr<Feed>& feed);

    const FeedsBrowserEnvironment _environment;
    const std::shared_ptr<Application> _application;
    const std::shared_ptr<ApplicationWindows> _windows;
};

} // namespace brindle
