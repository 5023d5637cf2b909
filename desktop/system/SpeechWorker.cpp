#include "desktop/system/SpeechWorker.hpp"

#include <QThread>

namespace brindle::desktop {

void SpeechWorker::begin() {
    _engine = std::make_unique<QTextToSpeech>();
    connect(_engine.get(), &QTextToSpeech::stateChanged, this, [this](QTextToSpeech::State state) { stateChanged(state); });
    QStringList names;
    if (_engine->state() != QTextToSpeech::Error) {
        for (const QVoice& voice : _engine->availableVoices())
            names.append(voice.name());
    }
    _ownVoice = _engine->voice();
    emit voicesFound(names);
}

void SpeechWorker::speak(const QString& text, int voice, unsigned utterance) {
    _utterance = utterance;
    _hasBegun = false;
    const QList<QVoice> voices = voice < 0 ? QList<QVoice>() : _engine->availableVoices();
    if (voice >= 0 && voice < voices.size())
        _engine->setVoice(voices[voice]);
    else if (_engine->voice() != _ownVoice)
        _engine->setVoice(_ownVoice);
    _engine->say(text);
    // An engine that can't speak says nothing of it.
    if (_engine->state() == QTextToSpeech::Error)
        emit finished(_utterance);
}

void SpeechWorker::stop() {
    if (_engine)
        _engine->stop();
}

void SpeechWorker::end() {
    _engine.reset();
    thread()->quit();
}

void SpeechWorker::stateChanged(QTextToSpeech::State state) {
    if (state == QTextToSpeech::Speaking)
        _hasBegun = true;
    else if (state == QTextToSpeech::Error || (state == QTextToSpeech::Ready && _hasBegun))
        emit finished(_utterance);
}

} // namespace brindle::desktop
