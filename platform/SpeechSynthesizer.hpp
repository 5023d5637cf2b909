#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindle {

/// A voice that the system can speak with.
struct SpeechVoice {
    std::string identifier;
    std::string name; ///< for people

    friend bool operator==(const SpeechVoice&, const SpeechVoice&) = default;
};

/// Is told that a list of voices is another now. Thread: main.
class SpeechVoicesObserver {
public:
    virtual ~SpeechVoicesObserver() = default;
    virtual void speechVoicesDidChange() = 0;
};

/// The voices that the system has, in a fixed order. Thread: main.
class SpeechVoices {
public:
    virtual ~SpeechVoices() = default;
    /// Those that are known; asking may have the system look for more. Returns at once.
    virtual std::vector<SpeechVoice> voices() const = 0;
    virtual std::optional<SpeechVoice> defaultVoice() const = 0;
    /// The voice at a place of the list; absent beyond its end.
    virtual std::optional<SpeechVoice> voice(std::size_t index) const {
        const std::vector<SpeechVoice> list = voices();
        return index < list.size() ? std::optional(list[index]) : std::nullopt;
    }

    std::weak_ptr<SpeechVoicesObserver> observer;
};

/// Is told how far a synthesizer is. Thread: main.
class SpeechSynthesizerDelegate {
public:
    virtual ~SpeechSynthesizerDelegate() = default;
    /// The text under way came to its end.
    virtual void speechSynthesizerDidFinish() = 0;
};

/// Speaks texts. Thread: main.
class SpeechSynthesizer {
public:
    virtual ~SpeechSynthesizer() = default;
    virtual bool isSpeaking() const = 0;
    /// Returns at once.
    virtual void speak(const std::string& text, const SpeechVoice& voice) = 0;

    std::weak_ptr<SpeechSynthesizerDelegate> delegate;
};

} // namespace brindle
