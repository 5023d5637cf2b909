#include "desktop/system/SpeechService.hpp"

#include "foundation/FileManager.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace brindle::desktop {

namespace {

class DelegateFake : public SpeechSynthesizerDelegate {
public:
    void speechSynthesizerDidFinish() override { ++finished; }

    int finished = 0;
};

/// For a person whose speech daemon does not run, and is not to be started.
class SpeechServiceTest : public testing::Test {
protected:
    SpeechServiceTest() {
        const std::filesystem::path settings = _home / "speech-dispatcher";
        EXPECT_TRUE(FileManager::createDirectory(settings));
        EXPECT_TRUE(FileManager::writeAtomically(settings / "speechd.conf", "DisableAutoSpawn\n"));
        for (const char* const name : variables) {
            _former.push_back(qgetenv(name));
            qputenv(name, QByteArray::fromStdString(_home.path().string()));
        }
    }
    ~SpeechServiceTest() override {
        for (std::size_t i = 0; i < variables.size(); ++i)
            _former[i].isNull() ? qunsetenv(variables[i]) : qputenv(variables[i], _former[i]);
    }

    static constexpr std::array<const char*, 4> variables = {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"};

    TemporaryFolder _home;
    std::vector<QByteArray> _former;
    SpeechService _speech;
};

} // namespace

TEST_F(SpeechServiceTest, HasTheDefaultVoiceFirst) {
    const auto voices = _speech.voices();
    ASSERT_FALSE(voices.empty());
    EXPECT_EQ(voices.front(), _speech.defaultVoice());
    EXPECT_EQ(_speech.voice(0), voices.front());
}

TEST_F(SpeechServiceTest, HasAVoiceForEveryIndex) {
    EXPECT_TRUE(_speech.voice(4711));
}

TEST_F(SpeechServiceTest, EndsWhatNobodySpeaks) {
    const auto delegate = std::make_shared<DelegateFake>();
    _speech.delegate = delegate;
    EXPECT_FALSE(_speech.isSpeaking());
    _speech.speak("One article.", *_speech.defaultVoice());
    EXPECT_TRUE(_speech.isSpeaking());
    ASSERT_TRUE(runEventLoop([&] { return delegate->finished == 1; }));
    EXPECT_FALSE(_speech.isSpeaking());
}

} // namespace brindle::desktop
