#include "foundation/URLFetch.hpp"

#include "tests/support/HTTPServer.hpp"
#include "tests/support/MainLoop.hpp"

#include <gtest/gtest.h>
#include <limits>

namespace brindle {
namespace {

using Answer = tl::expected<URLFetch::Answer, URLError>;

class URLFetchTest : public testing::Test {
protected:
    HTTPServer server;
    std::chrono::milliseconds timeout{60'000};
    std::size_t maximumBody = std::numeric_limits<std::size_t>::max();

    Answer fetch(std::string_view path) {
        std::optional<Answer> answered;
        URLFetch::begin(server.url(path), timeout, maximumBody, [&](Answer answer) { answered = std::move(answer); });
        EXPECT_TRUE(runMainLoop([&] { return answered.has_value(); }));
        return answered.value_or(Answer());
    }
};

TEST_F(URLFetchTest, BringsTheWholeAnswer) {
    server.route("/a", HTTPServer::document("body"));
    const Answer answer = fetch("/a");
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->statusCode, 200);
    EXPECT_EQ(answer->body, "body");
    EXPECT_EQ(fetch("/missing")->statusCode, 404);
}

TEST_F(URLFetchTest, FollowsTwentyRedirects) {
    for (int hop = 0; hop < 21; ++hop)
        server.redirect("/" + std::to_string(hop), "/" + std::to_string(hop + 1));
    server.route("/21", HTTPServer::document("end"));
    EXPECT_EQ(fetch("/1")->body, "end");
    EXPECT_EQ(fetch("/0")->statusCode, 301);
}

TEST_F(URLFetchTest, AnswersNobodyWhoAsksForAPassword) {
    HTTPServer::Response locked = HTTPServer::document("locked");
    locked.status = 401;
    locked.headers.emplace_back("WWW-Authenticate", "Basic realm=\"r\"");
    server.route("/a", locked);
    EXPECT_EQ(fetch("/a")->body, "locked");
    EXPECT_EQ(server.requestCount("/a"), 1U);
}

TEST_F(URLFetchTest, FailsAnAnswerThatDoesNotEndInTime) {
    HTTPServer::Response slow = HTTPServer::document("slow");
    slow.fault = HTTPServer::Response::Fault::gate;
    server.route("/a", slow);
    timeout = std::chrono::milliseconds(50);
    const Answer answer = fetch("/a");
    ASSERT_FALSE(answer);
    EXPECT_EQ(answer.error().code, URLError::Code::timedOut);
}

TEST_F(URLFetchTest, FailsABodyThatIsTooLarge) {
    server.route("/a", HTTPServer::document("12345"));
    maximumBody = 5;
    EXPECT_EQ(fetch("/a")->body, "12345");
    maximumBody = 4;
    const Answer answer = fetch("/a");
    ASSERT_FALSE(answer);
    EXPECT_EQ(answer.error().description, "The server's answer is too large.");
}

} // namespace
} // namespace brindle
