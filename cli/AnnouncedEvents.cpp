#include "cli/AnnouncedEvents.hpp"

#include "Brindle/menu/DockBadge.hpp"
#include "cli/ImageSignatures.hpp"

#include <string>
#include <string_view>
#include <utility>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;

JSON event(std::string_view kind) {
    JSON json = JSON::object();
    json["event"] = kind;
    return json;
}

class LoggedNotificationCenter : public UserNotificationCenter {
public:
    explicit LoggedNotificationCenter(std::shared_ptr<EventLog> log) : _log(std::move(log)) {}

    void deliver(const UserNotification& notification) override {
        JSON json = event("banner");
        json["title"] = notification.title;
        json["text"] = notification.informativeText;
        _log->write(json);
    }

private:
    std::shared_ptr<EventLog> _log;
};

/// Speaks in no time.
class LoggedSynthesizer : public SpeechSynthesizer {
public:
    explicit LoggedSynthesizer(std::shared_ptr<EventLog> log) : _log(std::move(log)) {}

    bool isSpeaking() const override { return false; }
    void speak(const std::string& text, const SpeechVoice&) override {
        JSON json = event("speech");
        json["text"] = text;
        _log->write(json);
    }

private:
    std::shared_ptr<EventLog> _log;
};

/// Which voices the desktop has is not known here: there is one for every place.
class UnknownVoices : public SpeechVoices {
public:
    std::vector<SpeechVoice> voices() const override { return {}; }
    std::optional<SpeechVoice> defaultVoice() const override { return std::nullopt; }
    std::optional<SpeechVoice> voice(std::size_t) const override { return SpeechVoice(); }
};

class LoggedDockTile : public DockTile {
public:
    explicit LoggedDockTile(std::shared_ptr<EventLog> log) : _log(std::move(log)) {}

    void setBadgeLabel(const std::optional<std::string>& label) override {
        JSON json = event("badge");
        json["label"] = label ? JSON(*label) : JSON();
        _log->write(json);
    }

private:
    std::shared_ptr<EventLog> _log;
};

/// Of the collections and the menu, only the badge that comes with the menu is an event.
class BadgeRefresher : public InterfaceRefresher {
public:
    BadgeRefresher(std::shared_ptr<FeedsManager> feedsManager, std::shared_ptr<const UserDefaults> defaults, std::shared_ptr<EventLog> log)
        : _feedsManager(std::move(feedsManager)), _defaults(std::move(defaults)), _dockTile(std::move(log)) {}

    void refreshCollections() override {}
    void updateMenu() override { updateDockBadge(*_feedsManager, *_defaults, _dockTile); }

private:
    std::shared_ptr<FeedsManager> _feedsManager;
    std::shared_ptr<const UserDefaults> _defaults;
    LoggedDockTile _dockTile;
};

JSON notificationJSON(const Notification& notification) {
    JSON json = event("notification");
    json["name"] = notification.name;
    json["feed"] = static_cast<const FeedItem*>(notification.object)->uuid.uuidString();
    return json;
}

} // namespace

AnnouncedEvents::AnnouncedEvents(const std::shared_ptr<EventLog>& log, const std::shared_ptr<FeedsManager>& feedsManager,
    const std::shared_ptr<const UserDefaults>& defaults, std::shared_ptr<FeedItemDelegate> next)
    : _log(log), _notifier(FeedEventNotifier::make(defaults, std::make_shared<LoggedNotificationCenter>(log),
                     std::make_shared<UnknownVoices>(), [log] { return std::make_shared<LoggedSynthesizer>(log); })),
      _refresher(std::make_shared<BadgeRefresher>(feedsManager, defaults, log)),
      _dispatcher(_notifier, _refresher, std::make_shared<ImageSignatures>()), _next(std::move(next)) {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    _newArticlesObserver =
        center.addObserver(UISyncDispatcher::didReceiveNewArticlesNotification, nullptr, [log](const Notification& notification) {
            JSON json = notificationJSON(notification);
            json["newArticles"] = notification.value<bool>("newArticles").value_or(false);
            log->write(json);
        });
    _imageObserver = center.addObserver(UISyncDispatcher::didUpdateFeedItemImageNotification, nullptr,
        [log](const Notification& notification) { log->write(notificationJSON(notification)); });
}

void AnnouncedEvents::feedItemDidFinishParsing(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItemArticle>>& newArticles) {
    _dispatcher.feedItemDidFinishParsing(feedItem, newArticles);
    _next->feedItemDidFinishParsing(feedItem, newArticles);
}

void AnnouncedEvents::feedItemDidDiscoverFeedItems(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItem>>& feedItems) {
    _dispatcher.feedItemDidDiscoverFeedItems(feedItem, feedItems);
    _next->feedItemDidDiscoverFeedItems(feedItem, feedItems);
}

void AnnouncedEvents::feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>& error) {
    _dispatcher.feedItemDidFail(feedItem, error);
    _next->feedItemDidFail(feedItem, error);
}

void AnnouncedEvents::feedItemHasImageData(FeedItem& feedItem) {
    _dispatcher.feedItemHasImageData(feedItem);
    _next->feedItemHasImageData(feedItem);
}

void AnnouncedEvents::feedItemIsInvalid(FeedItem& feedItem) {
    _dispatcher.feedItemIsInvalid(feedItem);
    _next->feedItemIsInvalid(feedItem);
}

void AnnouncedEvents::feedItemDidEndIconStep(FeedItem& feedItem) {
    _dispatcher.feedItemDidEndIconStep(feedItem);
    _next->feedItemDidEndIconStep(feedItem);
}

} // namespace brindle
