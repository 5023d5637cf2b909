#include "SyndicatedParser/SyndicatedSessionPass.hpp"

#include "SyndicatedParser/FeedParserFactory.hpp"
#include "SyndicatedParser/StoredContents.hpp"
#include "foundation/DispatchQueue.hpp"

#include <utility>

namespace brindle {

void SyndicatedSessionPass::begin(SyndicatedSession& session, ColdBytes document) {
    const std::shared_ptr<SyndicatedSessionPass> pass(new SyndicatedSessionPass(session, std::move(document)));
    DispatchQueue(session.url().absoluteString()).async([pass] { pass->run(); });
}

SyndicatedSessionPass::SyndicatedSessionPass(SyndicatedSession& session, ColdBytes document)
    : _session(session.weak_from_this()), _delegate(session.delegate), _environment(session._environment), _url(session._url),
      _document(std::move(document)), _base(session._feed) {}

void SyndicatedSessionPass::run() {
    DecodedDocument document = decodeDocument(std::exchange(_document, {}).bytes());
    if (document.text.empty())
        return fail(SyndicatedSessionError::Case::noData);
    const SyndicatedFeedKind kind = detectFeedKind(document.text);
    if (kind == SyndicatedFeedKind::unknown)
        return fail(SyndicatedSessionError::Case::invalidFeed);
    prepareFeed(kind);
    if (kind != SyndicatedFeedKind::html)
        tellKind(kind);
    parse(kind, std::move(document));
}

void SyndicatedSessionPass::tellKind(SyndicatedFeedKind kind) {
    // The feed is still to be filled, so it stays here: the main thread gets it when nothing writes to it any more.
    DispatchQueue::main().async([weak = _session, kind] {
        const auto session = weak.lock();
        const auto delegate = session ? session->delegate.lock() : nullptr;
        if (delegate)
            delegate->syndicatedSessionDidDetectKind(*session, kind);
    });
}

void SyndicatedSessionPass::prepareFeed(SyndicatedFeedKind kind) {
    _feed = isSettled(_base->kind) ? std::make_shared<SyndicatedFeed>(*_base)
                                   : std::make_shared<SyndicatedFeed>(kind, _environment.clock->now());
}

void SyndicatedSessionPass::parse(SyndicatedFeedKind kind, DecodedDocument document) {
    if (kind == SyndicatedFeedKind::html) {
        if (!ask(false, [](SyndicatedSessionDelegate& delegate) { return delegate.syndicatedSessionShouldDiscoverFeeds(); }))
            return fail(SyndicatedSessionError::Case::invalidFeed);
        return discoverFeeds(std::move(document.text));
    }
    const SharedBytes text(std::move(document.text));
    const auto parser = makeFeedParser(kind, _feed, text, document.encoding, _environment.clock);
    if (!parser)
        return fail(SyndicatedSessionError::Case::invalidFeed);
    parser->parse([&](const SyndicatedFeedParserResult& result) { didParse(result, text, document.encoding); });
}

void SyndicatedSessionPass::didParse(const SyndicatedFeedParserResult& result, const SharedBytes& text, StringEncoding encoding) {
    // Kept as is: a parser that reports its failure twice makes the session fail twice.
    if (!result)
        return fail(SyndicatedSessionError::Case::invalidFeed);
    _feed->data.reset();
    if (encoding == StringEncoding::utf8)
        _feed->data = std::string(text.view());
    else if (auto bytes = encode(text, encoding))
        _feed->data = *std::move(bytes);
    if (_environment.keepsDocumentsCompactly && _feed->data)
        keepCompactly();
    onMain([](SyndicatedSession& session, SyndicatedSessionDelegate* delegate) {
        if (delegate)
            delegate->syndicatedSessionDidFinishParsing(session);
    });
    discoverIcon();
}

/// Here, not on the main thread: where many feeds end at once, their documents wait there in line.
void SyndicatedSessionPass::keepCompactly() {
    StoredContents::takeFrom(*_feed, _environment.clock);
    _feed->data->compress();
}

void SyndicatedSessionPass::discoverFeeds(std::string page) {
    onMain([](SyndicatedSession&, SyndicatedSessionDelegate*) {}); // puts the feed, of kind html now, in its place
    // The completion may come on any thread, and does not keep the session.
    SyndicatedDiscovery::discoverFeeds(std::move(page), _environment.clock, [session = _session](SyndicatedDiscovery::Feeds feeds) {
        DispatchQueue::main().async([session, feeds = std::move(feeds)] {
            if (const auto found = session.lock())
                found->didDiscoverFeeds(feeds);
        });
    });
}

void SyndicatedSessionPass::discoverIcon() {
    const bool isWanted = ask(true, [](SyndicatedSessionDelegate& delegate) { return delegate.syndicatedSessionShouldDiscoverIcon(); });
    const auto root = isWanted && _environment.iconDiscovery ? siteRoot() : std::nullopt;
    const auto report = [session = _session](const std::optional<std::string>& bytes) {
        const auto found = session.lock();
        const auto delegate = found ? found->delegate.lock() : nullptr;
        if (!delegate)
            return;
        if (bytes)
            delegate->syndicatedSessionDidDiscoverIcon(*found, *bytes);
        delegate->syndicatedSessionDidEndIconStep(*found);
    };
    if (root)
        _environment.iconDiscovery->discoverIcon(*root, report);
    else
        DispatchQueue::main().async([report] { report(std::nullopt); });
}

std::optional<URL> SyndicatedSessionPass::siteRoot() const {
    const URL site = _feed->primaryURL().value_or(_url);
    const std::string_view host = site.host().value_or("");
    if (host.empty())
        return std::nullopt;
    std::string root(site.scheme().value_or("http"));
    root += "://";
    root += host;
    return URL::make(root);
}

void SyndicatedSessionPass::fail(SyndicatedSessionError::Case kind) {
    onMain([kind](SyndicatedSession& session, SyndicatedSessionDelegate*) { session.fail({kind, std::nullopt}); });
}

void SyndicatedSessionPass::onMain(std::function<void(SyndicatedSession& session, SyndicatedSessionDelegate* delegate)> step) {
    DispatchQueue::main().async([feed = _feed, weak = _session, step = std::move(step)] {
        const auto session = weak.lock();
        if (!session)
            return;
        if (feed)
            session->_feed = feed;
        step(*session, session->delegate.lock().get());
    });
}

/// The delegate is asked here, off the main thread, but never ends here: whoever lets go of it last does so on the main thread.
template <typename Question>
bool SyndicatedSessionPass::ask(bool answerOfNone, Question question) {
    auto delegate = _delegate.lock();
    const bool answer = delegate ? question(*delegate) : answerOfNone;
    if (delegate)
        DispatchQueue::main().async([kept = std::move(delegate)] {});
    return answer;
}

} // namespace brindle
