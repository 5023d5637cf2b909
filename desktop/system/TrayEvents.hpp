#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace brindle::desktop {

/// Tells of what may be the coming or going of the tray of X11 (System Tray Protocol Specification): its window is announced by a client
/// message, and gone when it is destroyed. Other windows have such events too: who hears of one looks whether anything is different. Costs
/// nothing while nothing happens. Thread: main.
class TrayEvents : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    TrayEvents();
    ~TrayEvents() override;

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

signals:
    /// Of many at once only once, after the toolkit has seen them.
    void happened();

private:
    bool _isTold = true;
};

} // namespace brindle::desktop
