#pragma once

#include "Brindle/library/CollectionEntity.hpp"
#include "Brindle/library/SavedArticlesManager.hpp"

#include <memory>

namespace brindle {

/// The saved articles, in the order of saving. Thread: main.
class SavedArticlesCollectionEntity : public CollectionEntity<FeedItemArticle> {
public:
    explicit SavedArticlesCollectionEntity(std::weak_ptr<const SavedArticlesManager> savedArticlesManager);

    /// Fatal when the saved articles are gone.
    void refresh() override;

private:
    std::weak_ptr<const SavedArticlesManager> _savedArticlesManager;
};

} // namespace brindle
