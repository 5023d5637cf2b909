#include "desktop/system/SpeechService.hpp"

#include "desktop/system/SpeechWorker.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <algorithm>

namespace brindle::desktop {

namespace {

/// How long the end of the program waits for a daemon that hangs.
constexpr unsigned long endLimit = 500; // milliseconds

} // namespace

SpeechService::SpeechService() {
    _limit.setSingleShot(true);
    connect(&_limit, &QTimer::timeout, this, [this] {
        QMetaObject::invokeMethod(_worker, &SpeechWorker::stop);
        finish(_utterance);
    });
}

SpeechService::~SpeechService() {
    if (!_thread)
        return;
    QMetaObject::invokeMethod(_worker, &SpeechWorker::end);
    // A thread that hangs is left to the end of the process.
    if (_thread->wait(endLimit)) {
        delete _worker;
        delete _thread;
    }
}

void SpeechService::begin() const {
    if (_thread)
        return;
    _thread = new QThread;
    _worker = new SpeechWorker;
    _worker->moveToThread(_thread);
    auto* const self = const_cast<SpeechService*>(this);
    connect(_worker, &SpeechWorker::voicesFound, self, [self](const QStringList& names) { self->takeVoices(names); });
    connect(_worker, &SpeechWorker::finished, self, [self](unsigned utterance) { self->finish(utterance); });
    _thread->start();
    QMetaObject::invokeMethod(_worker, &SpeechWorker::begin);
}

void SpeechService::speak(const std::string& text, const SpeechVoice& voice) {
    begin();
    _isSpeaking = true;
    const unsigned utterance = ++_utterance;
    const int place = QString::fromStdString(voice.identifier).toInt() - 1;
    const QString spoken = toQString(text);
    QMetaObject::invokeMethod(_worker, [worker = _worker, spoken, place, utterance] { worker->speak(spoken, place, utterance); });
    _limit.start(utteranceLimit + characterLimit * std::min<qsizetype>(spoken.size(), 10'000));
}

void SpeechService::finish(unsigned utterance) {
    if (!_isSpeaking || utterance != _utterance)
        return;
    _limit.stop();
    _isSpeaking = false;
    if (const auto receiver = delegate.lock())
        receiver->speechSynthesizerDidFinish();
}

std::optional<SpeechVoice> SpeechService::defaultVoice() const {
    return SpeechVoice{"0", localized("Default voice")};
}

void SpeechService::takeVoices(const QStringList& names) {
    _names = names;
    if (const auto receiver = observer.lock())
        receiver->speechVoicesDidChange();
}

std::vector<SpeechVoice> SpeechService::voices() const {
    begin();
    std::vector<SpeechVoice> list = {*defaultVoice()};
    for (const QString& name : _names)
        list.push_back({std::to_string(list.size()), fromQString(name)});
    return list;
}

std::optional<SpeechVoice> SpeechService::voice(std::size_t index) const {
    if (index == 0)
        return defaultVoice();
    return SpeechVoice{std::to_string(index), fromQString(_names.value(static_cast<qsizetype>(index) - 1))};
}

} // namespace brindle::desktop
