#include "Brindle/browser/MediaPlayerWindowController.hpp"
#include "tests/fakes/AlertPresenterFake.hpp"
#include "tests/fakes/PlayerFake.hpp"
#include "tests/fakes/WindowFake.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MediaPlayerTest : public ::testing::Test {
protected:
    MediaPlayerTest() { content->playerView = view; }

    static URL url(std::string_view name) { return URL::make("http://a.test/" + std::string(name)).value(); }
    std::vector<std::string> takeCalls() { return brindle::takeCalls(log); }

    CallLog log = makeCallLog();
    std::shared_ptr<AlertPresenterFake> alerts = std::make_shared<AlertPresenterFake>(log);
    std::shared_ptr<PlayerViewFake> view = std::make_shared<PlayerViewFake>(log);
    std::shared_ptr<WindowFake> window = std::make_shared<WindowFake>(log);
    std::shared_ptr<MediaPlayerViewController> content = MediaPlayerViewController::make(alerts);
    std::shared_ptr<MediaPlayerWindowController> controller = MediaPlayerWindowController::make(window, content);
};

TEST_F(MediaPlayerTest, MakesAPlayerForTheFirstAddress) {
    content->playURL(url("a"));
    EXPECT_THAT(takeCalls(), ElementsAre("makePlayer http://a.test/a", "setPlayer", "setObserver"));
}

TEST_F(MediaPlayerTest, ReplacesWhatIsPlayedInPlace) {
    content->playURL(url("a"));
    takeCalls();
    content->playURL(url("b"));
    EXPECT_THAT(takeCalls(), ElementsAre("replaceCurrentItem http://a.test/b", "setObserver"));
}

TEST_F(MediaPlayerTest, PlaysWhenReady) {
    content->playURL(url("a"));
    takeCalls();
    view->made->become(Player::Status::unknown);
    EXPECT_THAT(takeCalls(), IsEmpty());
    view->made->become(Player::Status::readyToPlay);
    EXPECT_THAT(takeCalls(), ElementsAre("play"));
}

TEST_F(MediaPlayerTest, PlaysWhatIsReadyBeforeItCouldHearOfIt) {
    view->statusOfNext = Player::Status::readyToPlay;
    content->playURL(url("a"));
    EXPECT_EQ(takeCalls().back(), "play");
}

TEST_F(MediaPlayerTest, TellsAFailureOnceAndKeepsTheWindow) {
    content->playURL(url("a"));
    takeCalls();
    view->made->error = "No such host";
    view->made->become(Player::Status::failed);
    view->made->become(Player::Status::failed);
    EXPECT_THAT(takeCalls(), ElementsAre("runModal Loading failed!"));
    EXPECT_EQ(alerts->alerts.front().informativeText, "The current media could not be loaded because of an error: No such host");
}

TEST_F(MediaPlayerTest, TellsAFailureFromBeforeItCouldHearOfIt) {
    view->statusOfNext = Player::Status::failed;
    content->playURL(url("a"));
    EXPECT_EQ(alerts->alerts.size(), 1U);
    view->made->become(Player::Status::failed);
    EXPECT_EQ(alerts->alerts.size(), 1U);
}

TEST_F(MediaPlayerTest, TellsAFailureWithoutAnError) {
    content->playURL(url("a"));
    view->made->become(Player::Status::failed);
    EXPECT_EQ(alerts->alerts.front().informativeText, "The current media could not be loaded because of an error: ");
}

TEST_F(MediaPlayerTest, TellsTheFailureOfTheNextAddressToo) {
    content->playURL(url("a"));
    view->made->become(Player::Status::failed);
    content->playURL(url("b"));
    view->made->become(Player::Status::failed);
    EXPECT_EQ(alerts->alerts.size(), 2U);
}

TEST_F(MediaPlayerTest, StopsWhenTheWindowCloses) {
    controller->setURL(url("a"));
    controller->windowDidLoad();
    takeCalls();
    ASSERT_EQ(window->delegate.lock(), controller);
    controller->windowWillClose();
    EXPECT_THAT(takeCalls(), ElementsAre("setObserver none", "setRate 0", "setPlayer none"));
    controller->windowWillClose();
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(MediaPlayerTest, MakesAnotherPlayerAfterItsWindowWasClosed) {
    controller->windowDidLoad();
    controller->setURL(url("a"));
    controller->windowWillClose();
    takeCalls();
    controller->setURL(url("b"));
    EXPECT_THAT(takeCalls(), ElementsAre("makePlayer http://a.test/b", "setPlayer", "setObserver"));
}

TEST_F(MediaPlayerTest, StopsWhenTheControllerEnds) {
    content->playURL(url("a"));
    takeCalls();
    controller.reset();
    content.reset();
    EXPECT_THAT(takeCalls(), ElementsAre("setObserver none", "setRate 0", "setPlayer none"));
}

TEST_F(MediaPlayerTest, PreparesItsWindowAndPlaysTheAddressThatIsSet) {
    controller->setURL(url("a"));
    EXPECT_THAT(takeCalls(), IsEmpty());
    controller->windowDidLoad();
    EXPECT_THAT(
        takeCalls(), ElementsAre("setLevel 3", "setStyleMask 19", "setDelegate", "makePlayer http://a.test/a", "setPlayer", "setObserver"));
}

TEST_F(MediaPlayerTest, PlaysAnAddressThatIsSetLater) {
    controller->windowDidLoad();
    EXPECT_THAT(takeCalls(), ElementsAre("setLevel 3", "setStyleMask 19", "setDelegate"));
    controller->setURL(url("b"));
    EXPECT_EQ(controller->url(), url("b"));
    EXPECT_THAT(takeCalls(), ElementsAre("makePlayer http://a.test/b", "setPlayer", "setObserver"));
}

} // namespace
} // namespace brindle
