#pragma once

#include <string_view>

/// The names of the actions that the menu's items have.
namespace brindle::actions {

inline constexpr std::string_view showAbout = "showAbout:";
inline constexpr std::string_view showPreferences = "showPreferences:";
inline constexpr std::string_view handleQuit = "handleQuit:";
inline constexpr std::string_view showFeedsBrowser = "showFeedsBrowser:";
inline constexpr std::string_view newFeed = "newFeed:";
inline constexpr std::string_view newGroup = "newGroup:";
inline constexpr std::string_view togglePauseFeedUpdates = "togglePauseFeedUpdates:";
inline constexpr std::string_view handleUpdateAll = "handleUpdateAll:";
inline constexpr std::string_view handleMarkAllRead = "handleMarkAllRead:";
inline constexpr std::string_view handleMarkAllUnread = "handleMarkAllUnread:";
inline constexpr std::string_view markArticlesAsRead = "markArticlesAsRead:";
inline constexpr std::string_view markArticlesAsUnread = "markArticlesAsUnread:";
inline constexpr std::string_view openAllUnreadArticles = "openAllUnreadArticles:";
inline constexpr std::string_view openFeed = "openFeed:";
inline constexpr std::string_view showArticle = "showArticle:";

} // namespace brindle::actions
