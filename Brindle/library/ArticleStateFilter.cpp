#include "Brindle/library/ArticleStateFilter.hpp"

#include "foundation/FatalError.hpp"

namespace brindle {

std::string_view name(ArticleStateFilter filter) {
    switch (filter) {
    case ArticleStateFilter::unread:
        return "unread";
    case ArticleStateFilter::read:
        return "read";
    case ArticleStateFilter::any:
        return "any";
    }
    fatalError("An article state filter has no name.");
}

} // namespace brindle
