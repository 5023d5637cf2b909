#pragma once

#include <QObject>
#include <QStringList>
#include <QTextToSpeech>
#include <QVoice>
#include <memory>

namespace brindle::desktop {

/// The toolkit's speech on a thread of its own, since making it waits for a daemon that may hang. Thread: its own; signals carry what it
/// finds to the main one.
class SpeechWorker : public QObject {
    Q_OBJECT

public:
    /// Makes the engine, and tells its voices. What follows comes after that.
    void begin();
    /// `voice` is a place in the list that was told; any other: the engine's own choice.
    void speak(const QString& text, int voice, unsigned utterance);
    void stop();
    /// Gives the engine up, which may wait for the daemon as well, and ends the thread.
    void end();

signals:
    void voicesFound(const QStringList& names);
    /// Spoken, or could not be.
    void finished(unsigned utterance);

private:
    void stateChanged(QTextToSpeech::State state);

    std::unique_ptr<QTextToSpeech> _engine;
    QVoice _ownVoice; ///< what the engine speaks with where nothing else is asked for
    unsigned _utterance = 0;
    bool _hasBegun = false;
};

} // namespace brindle::desktop
