#include "desktop/system/TrayEvents.hpp"

#include <QCoreApplication>
#include <cstdint>
#include <utility>

namespace brindle::desktop {

namespace {

// X Window System Protocol, "Events": the first byte is the code, its highest bit set where another client sent the event.
constexpr std::uint8_t destroyNotify = 17;
constexpr std::uint8_t clientMessage = 33;
constexpr std::uint8_t codeBits = 0x7f;

} // namespace

TrayEvents::TrayEvents() {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

TrayEvents::~TrayEvents() {
    if (auto* const application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

bool TrayEvents::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto code = static_cast<std::uint8_t>(*static_cast<const std::uint8_t*>(message) & codeBits);
    if ((code == destroyNotify || code == clientMessage) && std::exchange(_isTold, false)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                _isTold = true;
                emit happened();
            },
            Qt::QueuedConnection);
    }
    return false;
}

} // namespace brindle::desktop
