#pragma once

#include "platform/SpeechSynthesizer.hpp"

#include <QObject>
#include <QStringList>
#include <QThread>
#include <QTimer>
#include <chrono>
#include <memory>
#include <mutex>
#include <optional>

namespace brindle::desktop {

class SpeechWorker;

/// Speech by the toolkit, and by speech-dispatcher below it, begun when it is first needed. The first voice is the engine's own choice and
/// always there, also where nothing can speak; a voice that is gone speaks with that one. Every utterance ends: one that can't be spoken at
/// once, one that the engine loses after a time that its length would explain. Thread: main.
class SpeechService : public QObject, public SpeechSynthesizer, public SpeechVoices {
    Q_OBJECT

public:
    /// How long a list of voices is waited for; who asks later gets all of it.
    static constexpr std::chrono::milliseconds voicesLimit{2000};
    /// How long an utterance may take: this, and this much for each of its characters.
    static constexpr std::chrono::milliseconds utteranceLimit{20'000};
    static constexpr std::chrono::milliseconds characterLimit{250};

    SpeechService();
    ~SpeechService() override;

    bool isSpeaking() const override { return _isSpeaking; }
    void speak(const std::string& text, const SpeechVoice& voice) override;

    std::vector<SpeechVoice> voices() const override;
    std::optional<SpeechVoice> defaultVoice() const override;
    /// Doesn't wait for the list: names may be missing.
    std::optional<SpeechVoice> voice(std::size_t index) const override;

private:
    struct FoundVoices;

    void begin() const;
    void finish(unsigned utterance);

    const std::shared_ptr<FoundVoices> _found;
    mutable QThread* _thread = nullptr; ///< null before the first use
    mutable SpeechWorker* _worker = nullptr;
    QTimer _limit;
    unsigned _utterance = 0;
    bool _isSpeaking = false;
};

} // namespace brindle::desktop
