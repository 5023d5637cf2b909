#pragma once

#include "Brindle/library/FeedItemArticle.hpp"
#include "platform/ImageView.hpp"
#include "platform/TableCellView.hpp"
#include "platform/TextField.hpp"

#include <memory>

namespace brindle {

/// The name of an article, with a mark where it is saved. Thread: main.
class ArticleNameTableCellView : public TableCellView {
public:
    TextField nameTextField;
    ImageView savedImageView; ///< hidden unless the article is saved
    std::shared_ptr<FeedItemArticle> article;
};

} // namespace brindle
