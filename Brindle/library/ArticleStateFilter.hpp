#pragma once

#include <string_view>

namespace brindle {

/// Which articles a query or a mark is about.
enum class ArticleStateFilter { unread, read, any };

/// "unread", "read", "any".
std::string_view name(ArticleStateFilter filter);

} // namespace brindle
