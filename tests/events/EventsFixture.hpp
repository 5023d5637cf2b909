#pragma once

#include "Brindle/events/FeedEventNotifier.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/Preferences.hpp"
#include "foundation/Console.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "tests/fakes/SpeechFake.hpp"
#include "tests/fakes/UserNotificationCenterFake.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brindle {

/// A notifier whose banners and speech are on, preferences with their defaults otherwise, and a feed named Example.
class EventsTest : public ::testing::Test {
protected:
    using Articles = FeedEventNotifier::Articles;

    EventsTest() {
        Console::redirect([this](std::string_view line) { lines.emplace_back(line); });
        registerDefaults(*defaults);
        defaults->set(preference::useVisualNotifications, true);
        defaults->set(preference::useSpeechNotifications, true);
        notifier = FeedEventNotifier::make(defaults, banners, voices, [this] {
            ++madeSynthesizers;
            return speech;
        });
    }
    ~EventsTest() override {
        feed.reset();
        Console::redirect({});
        LocalizedStrings::set({});
    }

    static std::shared_ptr<FeedItem> makeItem(const std::string& name) {
        const SyndicatedSessionEnvironment environment = {std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
        return FeedItem::make(name, URL::make("http://127.0.0.1/feed").value(), FeedItem::defaultUpdateRate, {}, {}, environment);
    }
    /// That many unread articles.
    Articles articles(int count) const {
        Articles list;
        for (int i = 0; i < count; ++i)
            list.push_back(std::make_shared<FeedItemArticle>(std::make_shared<SyndicatedEntry>(Date()), feed));
        return list;
    }

    TemporaryFolder folder;
    std::shared_ptr<UserDefaults> defaults = std::make_shared<UserDefaults>(folder.path() / "Preferences.plist");
    std::shared_ptr<UserNotificationCenterFake> banners = std::make_shared<UserNotificationCenterFake>();
    std::shared_ptr<SpeechVoicesFake> voices = std::make_shared<SpeechVoicesFake>();
    std::shared_ptr<SpeechSynthesizerFake> speech = std::make_shared<SpeechSynthesizerFake>();
    int madeSynthesizers = 0;
    std::shared_ptr<FeedEventNotifier> notifier;
    std::vector<std::string> lines; ///< of the console
    std::shared_ptr<FeedItem> feed = makeItem("Example");
};

} // namespace brindle
