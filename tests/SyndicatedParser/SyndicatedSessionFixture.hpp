#pragma once

#include "SyndicatedParser/SyndicatedSession.hpp"
#include "foundation/Console.hpp"
#include "tests/fakes/ClockFake.hpp"
#include "tests/fakes/IconDiscoveryFake.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"
#include "tests/fakes/SyndicatedSessionDelegateFake.hpp"
#include "tests/support/HTTPServer.hpp"
#include "tests/support/MainLoop.hpp"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// A session with a server on loopback; all else that it asks is a fake.
class SyndicatedSessionTest : public testing::Test {
protected:
    using Fault = HTTPServer::Response::Fault;
    using Log = std::vector<std::string>;

    static constexpr std::string_view rss =
        "<rss><channel><title>News</title><item><title>One</title><guid>1</guid></item></channel></rss>";
    static constexpr std::string_view atom = "<feed><title>Atom</title><entry><title>A</title><id>a</id></entry></feed>";
    static constexpr std::string_view json = R"({"version":"1.1","title":"JSON","items":[{"id":"1","title":"J"}]})";

    static std::string page(const std::string& links) { return "<html><head>" + links + "</head><body>hello</body></html>"; }
    static std::string link(const std::string& href) {
        return R"(<link rel="alternate" type="application/rss+xml" href=")" + href + "\"/>";
    }

    SyndicatedSessionTest() {
        Console::redirect([this](std::string_view line) { _lines.emplace_back(line); });
    }
    ~SyndicatedSessionTest() override { Console::redirect(nullptr); }

    void serve(std::string path, std::string_view body) { _server.route(std::move(path), HTTPServer::document(std::string(body))); }

    void make(std::string_view path) {
        _session = SyndicatedSession::make(_server.url(path), {_clock, _route, _icons});
        _session->delegate = _delegate;
    }

    /// Starts the session, one for `path` where there is none, with an empty log; true when `call` came last.
    bool update(std::string_view path, const std::string& call) {
        if (!_session)
            make(path);
        _delegate->log.clear();
        _session->start();
        return waitFor(call);
    }

    bool waitFor(const std::string& call) {
        return runMainLoop([&] { return !_delegate->log.empty() && _delegate->log.back() == call; });
    }

    HTTPServer _server;
    const std::shared_ptr<ClockFake> _clock = std::make_shared<ClockFake>(Date(std::chrono::hours(400000)));
    const std::shared_ptr<NetworkRouteFake> _route = std::make_shared<NetworkRouteFake>();
    const std::shared_ptr<IconDiscoveryFake> _icons = std::make_shared<IconDiscoveryFake>();
    const std::shared_ptr<SyndicatedSessionDelegateFake> _delegate = std::make_shared<SyndicatedSessionDelegateFake>();
    std::shared_ptr<SyndicatedSession> _session;
    Log _lines;
};

} // namespace brindle
