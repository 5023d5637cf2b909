#pragma once

#include "SyndicatedParser/SyndicatedSession.hpp"
#include "foundation/DispatchQueue.hpp"

#include <array>
#include <atomic>
#include <string>
#include <vector>

namespace brindle {

/// Logs each call of a session, one line each, and answers as a test has it. The two questions that come off the main thread are logged on
/// it.
class SyndicatedSessionDelegateFake : public SyndicatedSessionDelegate, public std::enable_shared_from_this<SyndicatedSessionDelegateFake> {
public:
    void syndicatedSessionDidFinishParsing(SyndicatedSession&) override { log.emplace_back("finish"); }

    void syndicatedSessionDidFail(SyndicatedSession&, const SyndicatedSessionError& error) override {
        constexpr std::array names = {"connection", "other", "noData", "noURL", "invalidFeed"};
        log.push_back("fail " + std::string(names.at(static_cast<std::size_t>(error.kind))));
        lastError = error;
    }

    std::optional<URLCredential> syndicatedSessionCredential(SyndicatedSession&) override {
        log.emplace_back("credential");
        return credential;
    }

    bool syndicatedSessionShouldCancelAuthentication(SyndicatedSession&) override {
        log.emplace_back("shouldCancel");
        return cancelsAuthentication;
    }

    void syndicatedSessionDidDetectKind(SyndicatedSession&, SyndicatedFeedKind kind) override {
        log.push_back("detect " + std::string(displayString(kind)));
    }

    bool syndicatedSessionShouldDiscoverFeeds() override {
        DispatchQueue::main().async([self = shared_from_this()] { self->log.emplace_back("shouldDiscoverFeeds"); });
        return discoversFeeds;
    }

    void syndicatedSessionDidDiscoverFeeds(SyndicatedSession&, const std::vector<std::shared_ptr<SyndicatedFeed>>& feeds) override {
        log.push_back("discover " + std::to_string(feeds.size()));
    }

    bool syndicatedSessionShouldDiscoverIcon() override { return discoversIcon; }

    void syndicatedSessionDidDiscoverIcon(SyndicatedSession&, const std::string& bytes) override { log.push_back("icon " + bytes); }

    void syndicatedSessionDidEndIconStep(SyndicatedSession&) override { log.emplace_back("endIconStep"); }

    std::vector<std::string> log;
    std::optional<SyndicatedSessionError> lastError;
    std::optional<URLCredential> credential;
    bool cancelsAuthentication = true;
    std::atomic<bool> discoversFeeds = true;
    std::atomic<bool> discoversIcon = true;
};

} // namespace brindle
