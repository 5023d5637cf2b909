#include "Brindle/library/SavedArticlesCollectionEntity.hpp"

#include "foundation/FatalError.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

SavedArticlesCollectionEntity::SavedArticlesCollectionEntity(std::weak_ptr<const SavedArticlesManager> savedArticlesManager)
    : CollectionEntity(localized("Saved Articles")), _savedArticlesManager(std::move(savedArticlesManager)) {
    SavedArticlesCollectionEntity::refresh();
}

void SavedArticlesCollectionEntity::refresh() {
    assertMainThread();
    const auto savedArticlesManager = _savedArticlesManager.lock();
    if (!savedArticlesManager)
        fatalError("The collection of saved articles needs their manager.");
    setEntities(savedArticlesManager->savedArticles);
}

} // namespace brindle
