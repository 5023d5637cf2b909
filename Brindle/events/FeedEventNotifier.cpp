#include "Brindle/events/FeedEventNotifier.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "foundation/Console.hpp"
#include "foundation/FatalError.hpp"
#include "foundation/FormattedText.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace brindle {

std::string FeedEventNotifier::Event::title() const {
    switch (kind) {
    case Kind::newArticles:
        return localized(feedItem->name() + " has new articles!");
    case Kind::error:
        return localized(feedItem->name() + " could not be updated because of an error.");
    case Kind::authenticationRequest:
        return localized("Feed requested authentication.");
    case Kind::attention:
    case Kind::custom:
        break;
    }
    return localized(givenTitle);
}

std::shared_ptr<FeedEventNotifier> FeedEventNotifier::make(std::shared_ptr<const UserDefaults> defaults,
    std::shared_ptr<UserNotificationCenter> notificationCenter, std::shared_ptr<const SpeechVoices> voices,
    MakeSynthesizer makeSynthesizer) {
    return std::shared_ptr<FeedEventNotifier>(
        new FeedEventNotifier(std::move(defaults), std::move(notificationCenter), std::move(voices), std::move(makeSynthesizer)));
}

FeedEventNotifier::FeedEventNotifier(std::shared_ptr<const UserDefaults> defaults,
    std::shared_ptr<UserNotificationCenter> notificationCenter, std::shared_ptr<const SpeechVoices> voices, MakeSynthesizer makeSynthesizer)
    : _defaults(std::move(defaults)), _notificationCenter(std::move(notificationCenter)), _voices(std::move(voices)),
      _makeSynthesizer(std::move(makeSynthesizer)) {}

SpeechSynthesizer& FeedEventNotifier::synthesizer() {
    if (!_synthesizer) {
        _synthesizer = _makeSynthesizer();
        _synthesizer->delegate = weak_from_this();
    }
    return *_synthesizer;
}

void FeedEventNotifier::notifyVisually(const std::string& title, const std::string& message) {
    assertMainThread();
    if (!_defaults->boolForKey(preference::useVisualNotifications))
        return;
    _notificationCenter->delegate = weak_from_this();
    _notificationCenter->deliver({title, message});
}

void FeedEventNotifier::notifySpeech(const std::string& message) {
    assertMainThread();
    if (!_defaults->boolForKey(preference::useSpeechNotifications))
        return;
    if (synthesizer().isSpeaking())
        _speechQueue.push_back(message);
    else
        speak(message);
}

void FeedEventNotifier::speak(const std::string& message) {
    const std::int64_t index = _defaults->integerForKey(preference::speechVoiceIndex);
    const auto voice = index < 0 ? std::nullopt : _voices->voice(static_cast<std::size_t>(index));
    // Kept as is: the index is the program's own, taken from this list.
    if (!voice)
        fatalError("The voice to speak with is beyond the list of voices.");
    synthesizer().speak(message, *voice);
}

void FeedEventNotifier::notifyNewArticles(const std::shared_ptr<FeedItem>& feedItem, const Articles& articles) {
    if (!_defaults->boolForKey(preference::notifyOnNewArticles))
        return;
    Articles unread;
    std::copy_if(
        articles.begin(), articles.end(), std::back_inserter(unread), [](const auto& article) { return !article->entry->isRead(); });
    if (unread.empty())
        return;
    const std::string word = localized(unread.size() == 1 ? "article" : "articles");
    const std::string message = formatted(localized("%@ has %d new %@."), {feedItem->name(), std::to_string(unread.size()), word});
    const Event event = {Event::Kind::newArticles, feedItem, std::move(unread)};
    notifyVisually(event.title(), message);
    notifySpeech(message);
}

void FeedEventNotifier::notifyError(const std::shared_ptr<FeedItem>& feedItem) {
    if (!_defaults->boolForKey(preference::notifyOnOtherError))
        return;
    const std::string message = formatted(localized("An error occured while accessing %@."), {feedItem->name()});
    const Event event = {Event::Kind::error, feedItem};
    notifyVisually(event.title(), message);
    notifySpeech(message);
}

void FeedEventNotifier::speechSynthesizerDidFinish() {
    if (_speechQueue.empty())
        return;
    const std::string message = std::move(_speechQueue.front());
    _speechQueue.pop_front();
    speak(message);
}

void FeedEventNotifier::userNotificationCenterDidActivateNotification(const UserNotification& notification) {
    // Kept as is: no banner of this program carries the key.
    const auto identifier = notification.userInfo.find("feedIdentifier");
    if (identifier != notification.userInfo.end())
        Console::print("Feed " + identifier->second + " was clicked!");
}

} // namespace brindle
