#pragma once

#include <QProcess>
#include <QString>

namespace brindle::desktop {

/// A display of X11 that nobody sees, for programs that a test starts.
class VirtualDisplay {
public:
    VirtualDisplay() {
        // It takes a number that is free, and tells it once it can be used. It doesn't begin anew whenever its last client goes, for who
        // comes just then would be refused.
        _server.start(QStringLiteral("Xvfb"),
            {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                QStringLiteral("1024x768x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
        while (!_server.canReadLine() && _server.waitForReadyRead()) {
        }
        _number = QString::fromLatin1(_server.readLine()).trimmed();
    }
    ~VirtualDisplay() {
        _server.terminate();
        _server.waitForFinished();
    }
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    bool isThere() const { return !_number.isEmpty(); }
    /// As programs are told of it, ":1".
    QString name() const { return QLatin1Char(':') + _number; }

private:
    QProcess _server;
    QString _number; ///< empty: there is no display
};

} // namespace brindle::desktop
