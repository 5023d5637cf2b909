#pragma once

#include "platform/SpeechSynthesizer.hpp"

#include <string>
#include <vector>

namespace brindle {

/// The voices that a test sets.
class SpeechVoicesFake : public SpeechVoices {
public:
    std::vector<SpeechVoice> voices() const override { return list; }
    std::optional<SpeechVoice> defaultVoice() const override { return preferred; }

    std::vector<SpeechVoice> list = {{"one", "One"}, {"two", "Two"}};
    std::optional<SpeechVoice> preferred;
};

/// Logs each text with its voice, and speaks it until the test says that it is done.
class SpeechSynthesizerFake : public SpeechSynthesizer {
public:
    bool isSpeaking() const override { return speaks; }
    void speak(const std::string& text, const SpeechVoice& voice) override {
        log.push_back(voice.name + ": " + text);
        speaks = true;
    }

    /// Ends the text under way.
    void finish() {
        speaks = false;
        if (const auto receiver = delegate.lock())
            receiver->speechSynthesizerDidFinish();
    }

    std::vector<std::string> log;
    bool speaks = false;
};

} // namespace brindle
