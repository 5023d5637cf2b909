#pragma once

#include <string_view>

/// The names of the actions that the browser sends or takes.
namespace brindle::browseractions {

/// About a `Feed`: lists its articles.
inline constexpr std::string_view showFeed = "showFeed:";
/// About `CollectionArticles`: lists them.
inline constexpr std::string_view showCollectionArticles = "showCollectionArticles:";
/// About a `FeedItemArticle`: shows it.
inline constexpr std::string_view showArticle = "showArticle:";

inline constexpr std::string_view deleteFeed = "delete:";

inline constexpr std::string_view newFeed = "newFeed:";
inline constexpr std::string_view newGroup = "newGroup:";
inline constexpr std::string_view newSeparator = "newSeparator:";
inline constexpr std::string_view importOPML = "importOPML:";
inline constexpr std::string_view exportOPML = "exportOPML:";

inline constexpr std::string_view goBack = "goBack:";
inline constexpr std::string_view goForward = "goForward:";
inline constexpr std::string_view toggleShowOriginal = "toggleShowOriginal:";
inline constexpr std::string_view openInWebBrowser = "openInWebBrowser:";
inline constexpr std::string_view handleSave = "handleSave:";

} // namespace brindle::browseractions
