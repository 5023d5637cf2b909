#pragma once

#include "Brindle/library/CollectionEntityManager.hpp"
#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/menu/MenuRebuild.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/Menu.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"
#include "tests/fakes/ArticlePreviewFake.hpp"
#include "tests/fakes/ClockFake.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// The items of a menu and below it, a line each: two blanks for each level, "--------" for a separator, else the title with "[x]" before
/// it for a check mark, and behind it "(disabled)" and, in angle brackets, the action. What hangs from an article is left out.
std::string outline(Menu& menu);

/// The item at the end of a path of titles; null where there is none.
std::shared_ptr<MenuItem> itemAt(Menu& menu, const std::vector<std::string>& titles);

/// A library in memory, preferences with their defaults, and the console held still.
class MenuTest : public ::testing::Test {
protected:
    MenuTest();
    ~MenuTest() override;

    /// A feed with an article for each title, all of them unread and of the present moment.
    std::shared_ptr<FeedItem> makeItem(const std::string& name, const std::vector<std::string>& titles);
    /// Replaces the feed's articles, as a parse does.
    void parse(FeedItem& item, const std::vector<std::string>& titles) const;
    /// Appends an entry at the top level.
    void add(const std::shared_ptr<Feed>& feed) { manager->addFeed(feed, std::ssize(manager->feeds)); }
    static void markRead(FeedItem& item, std::size_t index);
    void set(std::string_view key, UserDefaults::Value value) { defaults->set(key, std::move(value)); }
    /// What the items of one rebuild share, by the present preferences and library.
    std::shared_ptr<MenuRebuild> rebuild() const;
    /// The console's lines since the last call.
    std::vector<std::string> takeLines();

    TemporaryFolder folder;
    std::shared_ptr<ClockFake> clock = std::make_shared<ClockFake>(Date(std::chrono::hours(500'000)));
    SyndicatedSessionEnvironment environment;
    std::shared_ptr<UserDefaults> defaults;
    std::shared_ptr<FeedsManager> manager;
    std::shared_ptr<ActionHandlerFake> applicationDelegate = std::make_shared<ActionHandlerFake>();
    std::shared_ptr<ArticlePreviewFactoryFake> previews = std::make_shared<ArticlePreviewFactoryFake>();

private:
    std::vector<std::string> _lines;
};

} // namespace brindle
