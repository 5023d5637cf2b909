#include "desktop/windows/SplitSizes.hpp"

#include "desktop/toolkit/Text.hpp"

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
    restore();
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
    if (fits)
        _splitter->setSizes(sizes);
}

void SplitSizes::save() {
    _timer.stop();
    const QList<int> sizes = _splitter->sizes();
    // A pane that is hidden for now has no width to come back to.
    if (sizes.contains(0))
        return;
    QStringList words;
    for (const int size : sizes)
        words.append(QString::number(size));
    _defaults->set(_key, fromQString(words.join(QLatin1Char(' '))));
}

} // namespace brindle::desktop
