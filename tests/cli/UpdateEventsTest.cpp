#include "tests/cli/NetworkCommandTest.hpp"

#include <fstream>

namespace brindle {
namespace {

class UpdateEventsTest : public NetworkCommandTest {
protected:
    std::filesystem::path log() const { return folder().path() / "events.log"; }

    /// The lines that an update writes.
    std::vector<std::string> update(int status = 0, const std::vector<std::string>& options = {"--no-icons"}) {
        std::vector<std::string> arguments = {"update", "--events", log().string()};
        arguments.insert(arguments.end(), options.begin(), options.end());
        EXPECT_EQ(run(arguments).status, status);
        std::ifstream stream(log());
        std::vector<std::string> lines;
        for (std::string line; std::getline(stream, line);)
            lines.push_back(line);
        return lines;
    }
    void set(const std::string& key) { EXPECT_EQ(run({"prefs", "set", key, "true"}).status, 0); }
    static std::string notice(const std::string& uuid, bool isNew) {
        return R"({"event":"notification","name":"UISyncDispatcherDidReceiveNewArticlesNotification","feed":")" + uuid +
               R"(","newArticles":)" + (isNew ? "true}" : "false}");
    }
};

TEST_F(UpdateEventsTest, WritesBannerSpeechBadgeAndNoticeOfNewArticles) {
    serve("/feed", rssDocument("Example", {}));
    const std::string uuid = add("/feed");
    set("useVisualNotifications");
    set("useSpeechNotifications");
    run({"prefs", "set", "speechVoiceIndex", "7"});
    serve("/feed", rssDocument("Example", {"Alpha", "Beta"}));
    EXPECT_EQ(update(),
        (std::vector<std::string>{R"({"event":"banner","title":"Example has new articles!","text":"Example has 2 new articles."})",
            R"({"event":"speech","text":"Example has 2 new articles."})", R"({"event":"badge","label":"2"})", notice(uuid, true)}));
    EXPECT_EQ(update(), (std::vector<std::string>{R"({"event":"badge","label":"2"})", notice(uuid, false)})) << "the file is written anew";
}

TEST_F(UpdateEventsTest, AnnouncesNothingThatThePreferencesDoNotWant) {
    serve("/feed", rssDocument("Example", {}));
    const std::string uuid = add("/feed");
    serve("/feed", rssDocument("Example", {"Alpha"}));
    EXPECT_EQ(run({"prefs", "set", "showBadgeInDock", "false"}).status, 0);
    EXPECT_EQ(update(), (std::vector<std::string>{R"({"event":"badge","label":null})", notice(uuid, true)}));
}

TEST_F(UpdateEventsTest, AnnouncesAFailure) {
    serve("/feed", rssDocument("Example", {}));
    add("/feed");
    server.route("/feed", HTTPServer::document("<opml/>"));
    EXPECT_TRUE(update(1).empty());
    set("useVisualNotifications");
    set("notifyOnOtherError");
    EXPECT_EQ(update(1),
        (std::vector<std::string>{
            R"({"event":"banner","title":"Example could not be updated because of an error.","text":"An error occured while accessing Example."})"}));
}

TEST_F(UpdateEventsTest, FetchesNothingWhenTheFileCannotBeWritten) {
    serve("/feed", rssDocument("Example", {}));
    add("/feed");
    const std::size_t before = server.requestCount("/feed");
    expectError({"update", "--events", (folder().path() / "missing" / "log").string()}, 1, "No such file or directory");
    EXPECT_EQ(server.requestCount("/feed"), before);
}

TEST_F(UpdateEventsTest, WritesToAFileOnly) {
    for (const char* file : {"", "-"})
        expectError({"update", "--events", file}, 2, "takes the name of a file");
}

TEST_F(UpdateEventsTest, FailsWhenAnEventCannotBeWritten) {
    serve("/feed", rssDocument("Example", {}));
    add("/feed");
    const CommandLineRun result = run({"update", "--no-icons", "--events", "/dev/full"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.messages(), (std::vector<std::string>{"brindle-cli: /dev/full could not be written"}));
}

} // namespace
} // namespace brindle
