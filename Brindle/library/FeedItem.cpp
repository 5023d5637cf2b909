#include "Brindle/library/FeedItem.hpp"

#include "Brindle/library/FeedItemArticle.hpp"
#include "SyndicatedParser/Makers.hpp"
#include "foundation/Console.hpp"
#include "foundation/FatalError.hpp"
#include "foundation/RunLoop.hpp"

#include <chrono>
#include <limits>
#include <utility>

#ifndef BRINDLE_VERSION
#define BRINDLE_VERSION "1.0"
#endif

namespace brindle {

namespace {

constexpr std::int64_t neverDiscovered = std::numeric_limits<std::int64_t>::min();
constexpr std::chrono::microseconds imageLifetime = std::chrono::seconds(604800);

const std::string& userAgent() {
    static const std::string agent = std::string("Brindle/" BRINDLE_VERSION " (macOS; ") + std::string(makersSite) + ")";
    return agent;
}

/// A session's queue holds its delegate while it asks it something, and may so be the last to let go of it; an item ends on the main thread
/// all the same.
void deleteOnMainThread(FeedItem* item) {
    if (RunLoop::main().isCurrent())
        delete item;
    else
        RunLoop::main().perform([owner = std::shared_ptr<FeedItem>(item)] {});
}

} // namespace

std::shared_ptr<FeedItem> FeedItem::make(std::string name, URL url, std::int64_t updateRate, std::string username, std::string password,
    const SyndicatedSessionEnvironment& environment) {
    assertMainThread();
    const std::shared_ptr<FeedItem> item(
        new FeedItem(std::move(name), std::move(url), updateRate, std::move(username), std::move(password), environment),
        deleteOnMainThread);
    item->_session->delegate = item;
    return item;
}

FeedItem::FeedItem(
    std::string name, URL url, std::int64_t rate, std::string user, std::string pass, const SyndicatedSessionEnvironment& environment)
    : Feed(Kind::item, std::move(name)), updateRate(rate), username(std::move(user)), password(std::move(pass)), _environment(environment),
      _session(SyndicatedSession::make(std::move(url), environment)), _imageDiscoveryTime(neverDiscovered) {
    _session->setCustomUserAgent(userAgent());
}

std::shared_ptr<FeedItem> FeedItem::decode(const Decoder& decoder, const SyndicatedSessionEnvironment& environment) {
    auto name = decoder.decodeText("feedName");
    auto url = URL::make(decoder.decodeText("feedURL").value_or(std::string()));
    if (!name || !url)
        return nullptr;
    const auto item = make(*std::move(name), *std::move(url), decoder.decodeInteger("feedRefreshrate").value_or(defaultUpdateRate),
        decoder.decodeText("feedUsername").value_or(std::string()), {}, environment);
    item->uuid = UUID::make(decoder.decodeText("feedUUID").value_or(std::string())).value_or(item->uuid);
    return item;
}

FeedItem::~FeedItem() {
    invalidateTimer();
    _articles.clear();
    _session->delegate.reset();
    Console::print("Removing FeedItem: " + FeedItem::name());
}

std::string FeedItem::name() const {
    return storedName().empty() ? _session->feed()->title : storedName();
}

void FeedItem::setFeedImageData(std::optional<std::string> image) {
    _feedImageData = std::move(image);
    _holdsImage = _feedImageData.has_value();
}

void FeedItem::scheduleUpdates(bool fetchNow) {
    invalidateTimer();
    std::int64_t seconds = 0;
    if (__builtin_mul_overflow(updateRate, std::int64_t{60}, &seconds))
        fatalError("A feed's update rate does not fit in seconds.");
    _timer = Timer::scheduledTimer(Timer::Interval(static_cast<double>(seconds)), true, [item = std::weak_ptr(shared())](Timer&) {
        if (const auto self = item.lock())
            self->parse();
    });
    if (fetchNow)
        parse();
}

void FeedItem::invalidateTimer() {
    if (!_timer)
        return;
    _timer->invalidate();
    _timer.reset();
}

void FeedItem::parse() {
    _lastConnectionFailed = false;
    _session->start();
}

std::vector<std::shared_ptr<FeedItemArticle>> FeedItem::articlesWithState(ArticleStateFilter filter) const {
    if (filter == ArticleStateFilter::any)
        return _articles;
    const bool wantsRead = filter == ArticleStateFilter::read;
    std::vector<std::shared_ptr<FeedItemArticle>> found;
    for (const auto& article : _articles) {
        if (article->entry->isRead() == wantsRead)
            found.push_back(article);
    }
    return found;
}

void FeedItem::markArticle(FeedItemArticle& article, ArticleStateFilter state) {
    const bool isRead = state == ArticleStateFilter::read;
    if (state == ArticleStateFilter::any || article.entry->isRead() == isRead)
        return;
    article.entry->setIsRead(isRead);
    articleStateCache.insert_or_assign(article.articleStateKey(), static_cast<std::int64_t>(article.entry->state()));
}

std::vector<std::string_view> FeedItem::archiveClasses() const {
    return {"FeedItem", "Feed"};
}

void FeedItem::encode(Coder& coder) const {
    // Kept as is: the display name is written, so a feed that never had a name of its own keeps the title it has now.
    coder.encode("feedName", name());
    coder.encode("feedURL", url().absoluteString());
    coder.encode("feedRefreshrate", updateRate);
    coder.encode("feedUsername", username);
    coder.encode("feedUUID", uuid.uuidString());
}

std::shared_ptr<FeedItem> FeedItem::shared() {
    return std::static_pointer_cast<FeedItem>(shared_from_this());
}

void FeedItem::syndicatedSessionDidFinishParsing(SyndicatedSession& session) {
    assertMainThread();
    const std::shared_ptr<SyndicatedFeed> feed = session.feed();
    _articles.clear();
    _articles.reserve(feed->entries.size());
    std::vector<std::shared_ptr<FeedItemArticle>> newArticles;
    std::vector<std::string> keys;
    keys.reserve(feed->entries.size());
    for (const std::shared_ptr<SyndicatedEntry>& entry : feed->entries) {
        const auto article = std::make_shared<FeedItemArticle>(entry, shared());
        keys.push_back(article->articleStateKey());
        if (const auto known = articleStateCache.find(keys.back()); known != articleStateCache.end())
            entry->setIsRead(known->second == 1);
        else
            newArticles.push_back(article);
        _articles.push_back(article);
    }
    // Kept as is: only now, so that two entries with one key are both new at their first sight, and keys that no article has any more stay,
    // so that an article that comes back keeps its state.
    for (std::size_t i = 0; i < keys.size(); ++i)
        articleStateCache.insert_or_assign(std::move(keys[i]), static_cast<std::int64_t>(_articles[i]->entry->state()));
    data = feed->data.value_or(ColdBytes());
    if (data == storedData && !data.empty()) {
        data.leaveIn(storedData.file());
        storedData = data;
    }
    if (const auto receiver = delegate.lock())
        receiver->feedItemDidFinishParsing(*this, newArticles);
}

void FeedItem::syndicatedSessionDidFail(SyndicatedSession&, const SyndicatedSessionError& error) {
    assertMainThread();
    std::optional<FeedItemError> reported = error;
    if (error.kind == SyndicatedSessionError::Case::connection) {
        // What a newer fetch cancelled says nothing of the connection.
        _lastConnectionFailed = !error.error || error.error->code != URLError::Code::cancelled;
        Console::print("A connection error occured: " + (error.error ? error.error->description : "unknown"));
        if (!data.empty())
            return _session->start(data);
        reported = error.error ? std::optional<FeedItemError>(*error.error) : std::nullopt;
    } else if (const auto host = url().host(); host && name().empty()) {
        setName(std::string(*host));
    }
    if (const auto receiver = delegate.lock())
        receiver->feedItemDidFail(*this, reported);
}

std::optional<URLCredential> FeedItem::syndicatedSessionCredential(SyndicatedSession&) {
    return std::nullopt;
}

bool FeedItem::syndicatedSessionShouldCancelAuthentication(SyndicatedSession&) {
    // Kept as is: a feed that asks for a password is not served; the stored user name and password are sent nowhere.
    return true;
}

void FeedItem::syndicatedSessionDidDetectKind(SyndicatedSession&, SyndicatedFeedKind detected) {
    if (detected != SyndicatedFeedKind::unknown)
        return;
    if (const auto receiver = delegate.lock())
        receiver->feedItemIsInvalid(*this);
}

bool FeedItem::syndicatedSessionShouldDiscoverFeeds() {
    return true;
}

void FeedItem::syndicatedSessionDidDiscoverFeeds(SyndicatedSession&, const std::vector<std::shared_ptr<SyndicatedFeed>>& feeds) {
    std::vector<std::shared_ptr<FeedItem>> items;
    for (const std::shared_ptr<SyndicatedFeed>& feed : feeds) {
        if (auto address = feed->primaryURL())
            items.push_back(make(feed->title, *std::move(address), defaultUpdateRate, {}, {}, _environment));
    }
    if (const auto receiver = delegate.lock())
        receiver->feedItemDidDiscoverFeedItems(*this, items);
}

bool FeedItem::syndicatedSessionShouldDiscoverIcon() {
    const std::int64_t discovered = _imageDiscoveryTime;
    if (discovered == neverDiscovered)
        return true;
    // Kept as is: a held icon is not looked for again in this run, however old.
    const bool isDue = std::chrono::microseconds(discovered) + imageLifetime <= _environment.clock->now().time_since_epoch();
    return isDue && !_holdsImage;
}

void FeedItem::syndicatedSessionDidDiscoverIcon(SyndicatedSession&, const std::string& bytes) {
    setFeedImageData(bytes);
    _imageDiscoveryTime = _environment.clock->now().time_since_epoch().count();
    if (const auto receiver = delegate.lock())
        receiver->feedItemHasImageData(*this);
}

void FeedItem::syndicatedSessionDidEndIconStep(SyndicatedSession&) {
    if (const auto receiver = delegate.lock())
        receiver->feedItemDidEndIconStep(*this);
}

} // namespace brindle
