#pragma once

#include "foundation/NotificationCenter.hpp"
#include "foundation/Object.hpp"

#include <memory>
#include <string_view>

/// The notices of the default notification centre by which open windows learn what others changed.
namespace brindle::notices {

/// A feed, a group or a separator came into the library.
inline constexpr std::string_view didAddFeed = "NewFeedWindowControllerDidAddFeed";
/// An entry of the tree, or one article, is not what it was.
inline constexpr std::string_view didUpdateFeed = "NewFeedWindowControllerDidUpdateFeed";
/// A feed was parsed.
inline constexpr std::string_view didReceiveNewArticles = "UISyncDispatcherDidReceiveNewArticlesNotification";
/// A feed has another icon.
inline constexpr std::string_view didUpdateFeedItemImage = "UISyncDispatcherDidUpdateFeedItemImage";
/// The preferences show other collections than before.
inline constexpr std::string_view didUpdateCollections = "PreferencesCollectionsViewControllerDidUpdateCollections";

/// Posts a notice of `object`, which also stands in the user info: "object", a `std::shared_ptr<Object>`. Thread: main.
void post(std::string_view name, const std::shared_ptr<Object>& object);

/// What a notice is about, by its user info. Null where that does not say. Thread: main.
std::shared_ptr<Object> subject(const Notification& notification);

} // namespace brindle::notices
