#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <array>
#include <memory>

namespace brindle::desktop {

/// Tells in the event loop that the process was asked to end, by SIGTERM, SIGINT or SIGHUP. One for a process; a second such signal ends it
/// at once. Thread: main.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

signals:
    void received();

private:
    std::array<int, 2> _pipe = {-1, -1};
    std::unique_ptr<QSocketNotifier> _notifier;
};

} // namespace brindle::desktop
