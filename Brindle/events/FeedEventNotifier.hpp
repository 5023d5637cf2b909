#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/SpeechSynthesizer.hpp"
#include "platform/UserNotificationCenter.hpp"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brindle {

/// Tells the user what the library has just learned, by banner and by speech as the preferences have it. Thread: main.
class FeedEventNotifier : public SpeechSynthesizerDelegate,
                          public UserNotificationCenterDelegate,
                          public std::enable_shared_from_this<FeedEventNotifier> {
public:
    using Articles = std::vector<std::shared_ptr<FeedItemArticle>>;
    using MakeSynthesizer = std::function<std::shared_ptr<SpeechSynthesizer>()>;

    /// What an announcement is about.
    struct Event {
        enum class Kind { newArticles, error, authenticationRequest, attention, custom };

        Kind kind = Kind::custom;
        std::shared_ptr<FeedItem> feedItem = nullptr; ///< of the first three kinds
        Articles articles = {};                       ///< of `newArticles`
        std::string givenTitle = {};                  ///< of the last two kinds
        std::string message = {};                     ///< of the last two kinds

        /// The finished text, as the table of localised texts has it, which seldom holds a text with a feed's name.
        std::string title() const;
    };

    /// `makeSynthesizer` is called for the first message that is spoken.
    static std::shared_ptr<FeedEventNotifier> make(std::shared_ptr<const UserDefaults> defaults,
        std::shared_ptr<UserNotificationCenter> notificationCenter, std::shared_ptr<const SpeechVoices> voices,
        MakeSynthesizer makeSynthesizer);

    void notifyVisually(const std::string& title, const std::string& message);
    /// Speaks the message after those that wait.
    void notifySpeech(const std::string& message);
    /// Speaks the message at once. Fatal when the preferences name a voice that does not exist.
    void speak(const std::string& message);
    /// Announces those of the articles that are unread.
    void notifyNewArticles(const std::shared_ptr<FeedItem>& feedItem, const Articles& articles);
    void notifyError(const std::shared_ptr<FeedItem>& feedItem);

    void speechSynthesizerDidFinish() override;
    void userNotificationCenterDidActivateNotification(const UserNotification& notification) override;

private:
    FeedEventNotifier(std::shared_ptr<const UserDefaults> defaults, std::shared_ptr<UserNotificationCenter> notificationCenter,
        std::shared_ptr<const SpeechVoices> voices, MakeSynthesizer makeSynthesizer);
    SpeechSynthesizer& synthesizer();

    std::shared_ptr<const UserDefaults> _defaults;
    std::shared_ptr<UserNotificationCenter> _notificationCenter;
    std::shared_ptr<const SpeechVoices> _voices;
    MakeSynthesizer _makeSynthesizer;
    std::shared_ptr<SpeechSynthesizer> _synthesizer; ///< null until something is spoken
    std::deque<std::string> _speechQueue;            ///< oldest first
};

} // namespace brindle
