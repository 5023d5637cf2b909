#pragma once

#include "SyndicatedParser/SyndicatedFeedParserError.hpp"
#include "SyndicatedParser/SyndicatedSession.hpp"
#include "foundation/SharedBytes.hpp"

#include <memory>
#include <string>

namespace brindle {

/// One document's way through a session: decoded, detected and parsed on a queue of its own, into a copy of the session's feed that
/// replaces it on the main thread. So passes of one session may overlap, and nothing that the main thread reads is written elsewhere.
class SyndicatedSessionPass : public std::enable_shared_from_this<SyndicatedSessionPass> {
public:
    /// Thread: main.
    static void begin(SyndicatedSession& session, ColdBytes document);

private:
    SyndicatedSessionPass(SyndicatedSession& session, ColdBytes document);

    // On the pass's queue.
    void run();
    void parse(SyndicatedFeedKind kind, DecodedDocument document);
    void didParse(const SyndicatedFeedParserResult& result, const SharedBytes& text, StringEncoding encoding);
    void keepCompactly();
    void discoverFeeds(std::string page);
    void discoverIcon();
    std::optional<URL> siteRoot() const;

    void tellKind(SyndicatedFeedKind kind);
    void prepareFeed(SyndicatedFeedKind kind);
    void fail(SyndicatedSessionError::Case kind);
    /// Runs `step` on the main thread with the session and its delegate, this pass's feed being the session's by then, so nothing may write
    /// to it any more; nothing when the session is gone.
    void onMain(std::function<void(SyndicatedSession& session, SyndicatedSessionDelegate* delegate)> step);
    template <typename Question>
    bool ask(bool answerOfNone, Question question);

    const std::weak_ptr<SyndicatedSession> _session;
    const std::weak_ptr<SyndicatedSessionDelegate> _delegate;
    const SyndicatedSessionEnvironment _environment;
    const URL _url;
    ColdBytes _document;                               ///< as fetched or stored; read on the pass's queue
    const std::shared_ptr<const SyndicatedFeed> _base; ///< the session's feed when the pass began
    std::shared_ptr<SyndicatedFeed> _feed;             ///< what this pass fills; null before the kind is known
};

} // namespace brindle
