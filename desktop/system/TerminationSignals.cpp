#include "desktop/system/TerminationSignals.hpp"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace brindle::desktop {

namespace {

constexpr std::array<int, 3> signalNumbers = {SIGTERM, SIGINT, SIGHUP};

/// Where the handler writes to; negative: nobody listens.
std::atomic<int> writeEnd = -1;

void install(void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : signalNumbers)
        ::sigaction(number, &action, nullptr);
}

void handleSignal(int) {
    const int formerError = errno;
    // Whichever comes next ends the process at once.
    install(SIG_DFL);
    const char byte = 0;
    // A full pipe is one that tells already.
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
    errno = formerError;
}

} // namespace

TerminationSignals::TerminationSignals() {
    if (::pipe2(_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    writeEnd = _pipe[1];
    _notifier = std::make_unique<QSocketNotifier>(_pipe[0], QSocketNotifier::Read);
    connect(_notifier.get(), &QSocketNotifier::activated, this, [this] {
        _notifier->setEnabled(false);
        emit received();
    });
    install(handleSignal);
}

TerminationSignals::~TerminationSignals() {
    if (!_notifier)
        return;
    install(SIG_DFL);
    writeEnd = -1;
    _notifier.reset();
    for (const int end : _pipe)
        ::close(end);
}

} // namespace brindle::desktop
