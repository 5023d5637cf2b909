#include "desktop/system/SpeechService.hpp"

#include "foundation/FileManager.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <vector>

namespace brindle::desktop {

namespace {

class DelegateFake : public SpeechSynthesizerDelegate {
public:
    void speechSynthesizerDidFinish() override { ++finished; }

    int finished = 0;
};

class ObserverFake : public SpeechVoicesObserver {
public:
    void speechVoicesDidChange() override { ++changes; }

    int changes = 0;
};

/// A speech daemon that takes every connection and never says a word.
class SilentDaemon {
public:
    explicit SilentDaemon(const std::filesystem::path& socket) : _socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        socket.native().copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::listen(_socket, 8), 0);
    }
    ~SilentDaemon() { ::close(_socket); }
    SilentDaemon(const SilentDaemon&) = delete;
    SilentDaemon& operator=(const SilentDaemon&) = delete;

private:
    const int _socket;
};

/// For a person whose speech daemon does not run, and is not to be started.
class SpeechServiceTest : public testing::Test {
protected:
    SpeechServiceTest() {
        const std::filesystem::path settings = _home / "speech-dispatcher";
        EXPECT_TRUE(FileManager::createDirectory(settings));
        EXPECT_TRUE(FileManager::writeAtomically(settings / "speechd.conf", "DisableAutoSpawn\n"));
        _speech->observer = _observer;
        const std::string home = _home.path().string();
        for (const char* const name : variables) {
            _former.push_back(qgetenv(name));
            qputenv(name, QByteArray::fromStdString(home));
        }
        // The folders of a person are found once in a process; the address is looked up each time.
        qputenv("SPEECHD_ADDRESS", QByteArray::fromStdString("unix_socket:" + socket().string()));
    }
    ~SpeechServiceTest() override {
        // Its end looks for the daemon once more.
        _speech.reset();
        for (std::size_t i = 0; i < variables.size(); ++i)
            _former[i].isNull() ? qunsetenv(variables[i]) : qputenv(variables[i], _former[i]);
    }

    /// Every test that has it look for voices waits for their end, so that it looks in the home of this test.
    bool hasFoundVoices() {
        return runEventLoop([this] { return _observer->changes == 1; });
    }

    std::filesystem::path socket() const { return _home / "speechd.sock"; }

    static constexpr std::array<const char*, 5> variables = {
        "HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "SPEECHD_ADDRESS"};

    TemporaryFolder _home;
    std::vector<QByteArray> _former;
    std::shared_ptr<ObserverFake> _observer = std::make_shared<ObserverFake>();
    std::unique_ptr<SpeechService> _speech = std::make_unique<SpeechService>();
};

} // namespace

TEST_F(SpeechServiceTest, HasTheDefaultVoiceFirst) {
    const auto voices = _speech->voices();
    ASSERT_FALSE(voices.empty());
    EXPECT_EQ(voices.front(), _speech->defaultVoice());
    EXPECT_EQ(_speech->voice(0), voices.front());
    EXPECT_TRUE(hasFoundVoices());
}

TEST_F(SpeechServiceTest, HasAVoiceForEveryIndex) {
    EXPECT_TRUE(_speech->voice(4711));
}

TEST_F(SpeechServiceTest, EndsWhatNobodySpeaks) {
    const auto delegate = std::make_shared<DelegateFake>();
    _speech->delegate = delegate;
    EXPECT_FALSE(_speech->isSpeaking());
    _speech->speak("One article.", *_speech->defaultVoice());
    EXPECT_TRUE(_speech->isSpeaking());
    ASSERT_TRUE(runEventLoop([&] { return delegate->finished == 1; }));
    EXPECT_TRUE(hasFoundVoices());
    EXPECT_FALSE(_speech->isSpeaking());
}

TEST_F(SpeechServiceTest, TellsVoicesOnceTheyAreKnownAndWaitsForNone) {
    auto daemon = std::make_unique<SilentDaemon>(socket());
    EXPECT_EQ(_speech->voices().size(), 1U);
    QCoreApplication::processEvents();
    EXPECT_EQ(_observer->changes, 0);
    daemon.reset();
    EXPECT_TRUE(hasFoundVoices());
}

} // namespace brindle::desktop
