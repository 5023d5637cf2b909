#pragma once

#include "platform/SpeechSynthesizer.hpp"

#include <QObject>
#include <QStringList>
#include <QThread>
#include <QTimer>
#include <chrono>
#include <memory>
#include <optional>

namespace brindle::desktop {

class SpeechWorker;

/// Speech by the toolkit, and by speech-dispatcher below it, begun when it is first needed. The first voice is the engine's own choice and
/// always there, also where nothing can speak; a voice that is gone speaks with that one. Every utterance ends: one that can't be spoken at
/// once, one that the engine loses after a time that its length would explain. Thread: main.
class SpeechService : public QObject, public SpeechSynthesizer, public SpeechVoices {
    Q_OBJECT

public:
    /// How long an utterance may take: this, and this much for each of its characters.
    static constexpr std::chrono::milliseconds utteranceLimit{20'000};
    static constexpr std::chrono::milliseconds characterLimit{250};

    SpeechService();
    ~SpeechService() override;

    bool isSpeaking() const override { return _isSpeaking; }
    void speak(const std::string& text, const SpeechVoice& voice) override;

    /// The first call begins to look for them.
    std::vector<SpeechVoice> voices() const override;
    std::optional<SpeechVoice> defaultVoice() const override;
    /// Also while they are being looked for: names may be missing.
    std::optional<SpeechVoice> voice(std::size_t index) const override;

private:
    void begin() const;
    void takeVoices(const QStringList& names);
    void finish(unsigned utterance);

    QStringList _names;                 ///< of the voices behind the first; empty before they were found
    mutable QThread* _thread = nullptr; ///< null before the first use
    mutable SpeechWorker* _worker = nullptr;
    QTimer _limit;
    unsigned _utterance = 0;
    bool _isSpeaking = false;
};

} // namespace brindle::desktop
