#pragma once

#include "Brindle/library/FeedItemArticle.hpp"
#include "SyndicatedParser/SyndicatedSession.hpp"

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

namespace brindle {

/// The articles that the user keeps beyond the life of their feeds' entries, and their file, a keyed archive with an array of articles as
/// root. Two articles are the same when the effective identifiers of their entries are equal: unlike by their keys, also when a title
/// changed. Thread: main.
class SavedArticlesManager {
public:
    /// What a view posts when it has saved, or unsaved, an article.
    static constexpr std::string_view didSaveArticleNotification = "ArticlesManagerDidSaveArticleNotification";
    static constexpr std::string_view didUnsaveArticleNotification = "ArticlesManagerDidUnsaveArticleNotification";

    /// The file lies in `supportDirectory`; `environment` is what the feeds in it are made with, which don't outlive the reading.
    SavedArticlesManager(std::filesystem::path supportDirectory, SyndicatedSessionEnvironment environment);
    virtual ~SavedArticlesManager() = default;

    std::vector<std::shared_ptr<FeedItemArticle>> savedArticles; ///< in the order of saving

    /// Appends what is stored. The articles come back unread and without a feed. False where there is no file, or it can't be read, which
    /// prints a line; also, without a line, where it holds anything but a list of articles.
    virtual bool load();
    /// Replaces the file; nothing at all while there are no articles. False when they could not be stored, which prints a line.
    virtual bool save();
    /// Appends the article, and saves, unless the same one is there. False as for `save`.
    virtual bool saveArticle(const std::shared_ptr<FeedItemArticle>& article);
    /// Removes the same article, and saves, if it is there. False as for `save`.
    virtual bool unsaveArticle(const FeedItemArticle& article);
    /// Whether the same article is among them.
    bool isSaved(const FeedItemArticle& article) const { return find(article) != savedArticles.end(); }

    const std::filesystem::path& file() const { return _file; }

private:
    std::vector<std::shared_ptr<FeedItemArticle>>::const_iterator find(const FeedItemArticle& article) const;

    std::filesystem::path _file;
    SyndicatedSessionEnvironment _environment;
};

} // namespace brindle
