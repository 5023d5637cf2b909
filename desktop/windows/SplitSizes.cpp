#include "desktop/windows/SplitSizes.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QEvent>
#include <QSplitter>
#include <QStringList>
#include <algorithm>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr std::chrono::milliseconds delay(500);
constexpr int largestWidth = 32'767; // what X11 has for a window's side

} // namespace

SplitSizes::SplitSizes(QSplitter* splitter, std::shared_ptr<UserDefaults> defaults, const std::string& name)
    : _splitter(splitter), _defaults(std::move(defaults)), _key("NSSplitView Subview Frames " + name) {
    _sizes.fill(0, splitter->count());
    restore();
    for (int i = 0; i < splitter->count(); ++i)
        splitter->widget(i)->installEventFilter(this);
    _timer.setSingleShot(true);
    _timer.setInterval(delay);
    connect(&_timer, &QTimer::timeout, this, &SplitSizes::save);
    connect(splitter, &QSplitter::splitterMoved, &_timer, qOverload<>(&QTimer::start));
}

SplitSizes::~SplitSizes() {
    if (_timer.isActive())
        save();
}

void SplitSizes::restore() {
    const QStringList words = toQString(_defaults->stringForKey(_key).value_or("")).split(QLatin1Char(' '));
    QList<int> sizes;
    for (const QString& word : words)
        sizes.append(word.toInt());
    const bool fits = sizes.size() == _splitter->count() &&
                      std::all_of(sizes.begin(), sizes.end(), [](int size) { return size > 0 && size <= largestWidth; });
    if (!fits)
        return;
    _sizes = sizes;
    _splitter->setSizes(sizes);
}

/// The splitter gives a pane's width away only after the pane was hidden.
bool SplitSizes::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::HideToParent && _splitter->isVisible())
        rememberSizes();
    return false;
}

void SplitSizes::rememberSizes() {
    const QList<int> sizes = _splitter->sizes();
    for (qsizetype i = 0; i < std::min(sizes.size(), _sizes.size()); ++i) {
        if (sizes[i] > 0)
            _sizes[i] = sizes[i];
    }
}

void SplitSizes::save() {
    _timer.stop();
    rememberSizes();
    if (_sizes.contains(0))
        return;
    QStringList words;
    for (const int size : std::as_const(_sizes))
        words.append(QString::number(size));
    _defaults->set(_key, fromQString(words.join(QLatin1Char(' '))));
}

} // namespace brindle::desktop
