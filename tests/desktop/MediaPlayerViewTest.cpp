#include "desktop/windows/MediaPlayerView.hpp"

#include "desktop/windows/Dialogs.hpp"
#include "tests/desktop/DialogFixture.hpp"
#include "tests/support/HTTPServer.hpp"

#include <QLabel>
#include <QScopeGuard>
#include <QSlider>
#include <QToolButton>
#include <QVideoWidget>
#include <QtEndian>

namespace brindle::desktop {

namespace {

/// Silence: PCM of 8 bits in mono (the WAVE format of RFC 2361).
std::string silence(int seconds) {
    constexpr quint32 rate = 8000;
    const quint32 size = rate * static_cast<quint32>(seconds);
    std::string bytes;
    const auto add = [&](auto number) {
        const auto little = qToLittleEndian(number);
        bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
    };
    bytes += "RIFF";
    add(size + 36);
    bytes += "WAVEfmt ";
    add(quint32(16));
    add(quint16(1));
    add(quint16(1));
    add(rate);
    add(rate);
    add(quint16(1));
    add(quint16(8));
    bytes += "data";
    add(size);
    return bytes + std::string(size, '\x80');
}

} // namespace

class MediaPlayerViewTest : public DialogTest {
protected:
    QMainWindow& play(const std::string& address, const std::string& title = "Talk") {
        player->setURL(URL::make(address).value());
        player->setTitle(title);
        player->showWindow();
        QMainWindow* const shown = window(title);
        if (!shown)
            throw std::runtime_error("no window " + title);
        return *shown;
    }

    HTTPServer server;
    std::shared_ptr<MediaPlayerWindowController> player = makeMediaPlayer({environment.defaults, {}}, alerts);
};

TEST_F(MediaPlayerViewTest, PlaysPausesAndGoesOn) {
    server.route("/talk.wav", HTTPServer::document(silence(60), "audio/x-wav"));
    QMainWindow& shown = play(server.origin() + "/talk.wav");
    ASSERT_TRUE(waitUntil([&] { return shown.findChild<QToolButton*>()->accessibleName() == QStringLiteral("Pause"); }));
    EXPECT_TRUE(alerts->alerts.empty());
    QTest::keyClick(shown.focusWidget(), Qt::Key_Space);
    ASSERT_TRUE(waitUntil([&] { return shown.findChild<QToolButton*>()->accessibleName() == QStringLiteral("Play"); }));
    ASSERT_TRUE(waitUntil([&] { return find<QSlider>(shown, "Position").maximum() == 60; }));
    EXPECT_EQ(find<QSlider>(shown, "Volume").value(), 100);
}

TEST_F(MediaPlayerViewTest, TellsAFailureOnceAndStaysOpen) {
    QMainWindow& shown = play(server.origin() + "/nothing.mp3");
    ASSERT_TRUE(waitUntil([&] { return !alerts->alerts.empty(); }));
    play(server.origin() + "/nothing.ogg", "Second");
    ASSERT_TRUE(waitUntil([&] { return alerts->alerts.size() == 2; }));
    EXPECT_TRUE(shown.isVisible());
    EXPECT_EQ(alerts->alerts[0].messageText, "Loading failed!");
    EXPECT_EQ(alerts->alerts.size(), 2U);
}

TEST_F(MediaPlayerViewTest, TriesAnAddressAgainThatFailed) {
    QMainWindow& shown = play(server.origin() + "/talk.wav");
    ASSERT_TRUE(waitUntil([&] { return !alerts->alerts.empty(); }));
    server.route("/talk.wav", HTTPServer::document(silence(60), "audio/x-wav"));
    play(server.origin() + "/talk.wav");
    EXPECT_TRUE(waitUntil([&] { return shown.findChild<QToolButton*>()->accessibleName() == QStringLiteral("Pause"); }));
    EXPECT_EQ(alerts->alerts.size(), 1U);
}

TEST_F(MediaPlayerViewTest, StartsAgainWhatIsPlaying) {
    server.route("/talk.wav", HTTPServer::document(silence(60), "audio/x-wav"));
    QMainWindow& shown = play(server.origin() + "/talk.wav");
    const auto isPlaying = [&] { return shown.findChild<QToolButton*>()->accessibleName() == QStringLiteral("Pause"); };
    ASSERT_TRUE(waitUntil(isPlaying));
    play(server.origin() + "/talk.wav");
    EXPECT_TRUE(waitUntil([&] { return isPlaying() && shown.findChild<QToolButton*>()->isEnabled(); }));
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST_F(MediaPlayerViewTest, PlaysAnotherEnclosureInTheSameWindow) {
    server.route("/long.wav", HTTPServer::document(silence(60), "audio/x-wav"));
    server.route("/short.wav", HTTPServer::document(silence(30), "audio/x-wav"));
    QMainWindow& shown = play(server.origin() + "/long.wav", "First");
    QSlider& position = find<QSlider>(shown, "Position");
    ASSERT_TRUE(waitUntil([&] { return position.maximum() == 60; }));
    EXPECT_EQ(&play(server.origin() + "/short.wav", "Second"), &shown);
    EXPECT_TRUE(waitUntil([&] { return position.maximum() == 30 && shown.findChild<QToolButton*>()->accessibleName() == "Pause"; }));
    EXPECT_EQ(window("First"), nullptr);
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST_F(MediaPlayerViewTest, IsAsLoudAsItIsSetTo) {
    QWidget parent;
    MediaPlayerView view(&parent);
    parent.show();
    view.setPlayer(view.makePlayer(server.url("/talk.wav")));
    const QAudioOutput& audio = view.shownPlayer()->audio();
    EXPECT_EQ(audio.volume(), 1.0F);
    QSlider& volume = find<QSlider>(parent, "Volume");
    volume.setValue(volume.maximum() / 2);
    EXPECT_GT(audio.volume(), 0.0F);
    EXPECT_LT(audio.volume(), 0.5F); // half as loud to an ear
    volume.setValue(0);
    EXPECT_EQ(audio.volume(), 0.0F);
}

TEST_F(MediaPlayerViewTest, IsSilentWhileItIsMuted) {
    QWidget parent;
    MediaPlayerView view(&parent);
    parent.show();
    view.setPlayer(view.makePlayer(server.url("/talk.wav")));
    QToolButton& mute = find<QToolButton>(parent, "Mute");
    QTest::keyClick(&mute, Qt::Key_Space);
    EXPECT_TRUE(view.shownPlayer()->audio().isMuted());
    // What is played next is as silent.
    view.setPlayer(view.makePlayer(server.url("/other.wav")));
    EXPECT_TRUE(view.shownPlayer()->audio().isMuted());
    QTest::keyClick(&mute, Qt::Key_Space);
    EXPECT_FALSE(view.shownPlayer()->audio().isMuted());
}

TEST_F(MediaPlayerViewTest, TellsNoFailureOfWhatWasReplaced) {
    server.route("/talk.wav", HTTPServer::document(silence(60), "audio/x-wav"));
    play("file:///usr/share/sounds/alsa/Noise.wav");
    QMainWindow& shown = play(server.origin() + "/talk.wav", "Second");
    EXPECT_TRUE(waitUntil([&] { return shown.findChild<QToolButton*>()->accessibleName() == QStringLiteral("Pause"); }));
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST_F(MediaPlayerViewTest, PlaysNoFiles) {
    play("file:///usr/share/sounds/alsa/Noise.wav");
    ASSERT_TRUE(waitUntil([&] { return !alerts->alerts.empty(); }));
    EXPECT_NE(alerts->alerts[0].informativeText.find("Only what is on the network can be played."), std::string::npos);
}

TEST_F(MediaPlayerViewTest, FailsWhereThereIsNothingToPlayWith) {
    qputenv("QT_MEDIA_BACKEND", "nothing");
    const auto restore = qScopeGuard([] { qunsetenv("QT_MEDIA_BACKEND"); });
    player = makeMediaPlayer({environment.defaults, {}}, alerts);
    QMainWindow& shown = play(server.origin() + "/talk.wav");
    ASSERT_EQ(alerts->alerts.size(), 1U);
    EXPECT_EQ(alerts->alerts[0].messageText, "Loading failed!");
    EXPECT_NE(alerts->alerts[0].informativeText.find("This system has nothing that plays audio and video."), std::string::npos);
    EXPECT_TRUE(shown.isVisible());
    EXPECT_EQ(shown.findChild<QVideoWidget*>(), nullptr);
    play(server.origin() + "/other.wav");
    EXPECT_TRUE(waitUntil([&] { return alerts->alerts.size() == 2; }));
    QTest::keyClick(&shown, Qt::Key_Escape);
    EXPECT_FALSE(shown.isVisible());
}

TEST_F(MediaPlayerViewTest, StopsWhenItIsClosed) {
    server.route("/talk.wav", HTTPServer::document(silence(60), "audio/x-wav"));
    QMainWindow& shown = play(server.origin() + "/talk.wav");
    ASSERT_TRUE(waitUntil([&] { return shown.findChild<QToolButton*>()->accessibleName() == QStringLiteral("Pause"); }));
    QTest::keyClick(&shown, Qt::Key_Escape);
    EXPECT_FALSE(shown.isVisible());
    EXPECT_EQ(shown.findChild<QToolButton*>()->accessibleName().toStdString(), "Play");
    EXPECT_FALSE(shown.findChild<QToolButton*>()->isEnabled());
}

} // namespace brindle::desktop
