#include "foundation/RunLoop.hpp"
#include "tests/SyndicatedParser/SyndicatedSessionFixture.hpp"

#include <mutex>
#include <set>

namespace brindle {
namespace {

/// Notes where each call comes: on the main thread or off it. Has a wrong credential for whoever asks.
class ThreadNotes : public SyndicatedSessionDelegate {
public:
    void syndicatedSessionDidFinishParsing(SyndicatedSession&) override { note("finish"); }
    void syndicatedSessionDidFail(SyndicatedSession&, const SyndicatedSessionError&) override { note("fail"); }
    std::optional<URLCredential> syndicatedSessionCredential(SyndicatedSession&) override {
        note("credential");
        return URLCredential{"user", "wrong"};
    }
    bool syndicatedSessionShouldCancelAuthentication(SyndicatedSession&) override {
        note("shouldCancel");
        return false;
    }
    void syndicatedSessionDidDetectKind(SyndicatedSession&, SyndicatedFeedKind) override { note("detect"); }
    bool syndicatedSessionShouldDiscoverFeeds() override {
        note("shouldDiscoverFeeds");
        return true;
    }
    void syndicatedSessionDidDiscoverFeeds(SyndicatedSession&, const std::vector<std::shared_ptr<SyndicatedFeed>>&) override {
        note("discover");
    }
    bool syndicatedSessionShouldDiscoverIcon() override {
        note("shouldDiscoverIcon");
        return true;
    }
    void syndicatedSessionDidDiscoverIcon(SyndicatedSession&, const std::string&) override { note("icon"); }
    void syndicatedSessionDidEndIconStep(SyndicatedSession&) override { note("endIconStep"); }

    std::set<std::string> notes() const {
        const std::lock_guard lock(_mutex);
        return _notes;
    }
    bool has(const std::string& call) const { return notes().contains(call); }

private:
    void note(const std::string& call) {
        const std::lock_guard lock(_mutex);
        _notes.insert(call + (RunLoop::main().isCurrent() ? " on main" : " off main"));
    }

    mutable std::mutex _mutex;
    std::set<std::string> _notes;
};

class SyndicatedSessionThreadTest : public SyndicatedSessionTest {};

TEST_F(SyndicatedSessionThreadTest, TellsItsDelegateOnTheMainThreadAndAsksTwoQuestionsOffIt) {
    const auto notes = std::make_shared<ThreadNotes>();
    _icons->bytes = "icon";
    HTTPServer::Response locked;
    locked.status = 401;
    locked.headers.emplace_back("WWW-Authenticate", "Basic realm=\"x\"");
    serve("/feed", rss);
    serve("/page", page(link("http://a.test/1") + link("http://a.test/2")));
    _server.route("/locked", locked);
    const auto follow = [&](std::string_view path, const std::string& end) {
        make(path);
        _session->delegate = notes;
        _session->start();
        return runMainLoop([&] { return notes->has(end); });
    };
    ASSERT_TRUE(follow("/feed", "endIconStep on main"));
    ASSERT_TRUE(follow("/page", "discover on main"));
    ASSERT_TRUE(follow("/locked", "fail on main"));
    EXPECT_EQ(notes->notes(),
        (std::set<std::string>{"credential on main", "detect on main", "discover on main", "endIconStep on main", "fail on main",
            "finish on main", "icon on main", "shouldCancel on main", "shouldDiscoverFeeds off main", "shouldDiscoverIcon off main"}));
}

} // namespace
} // namespace brindle
