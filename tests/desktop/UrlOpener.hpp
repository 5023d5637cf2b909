#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QString>
#include <QUrl>
#include <string>
#include <vector>

namespace brindle::desktop {

/// Stands for the other programs, to which the toolkit would give addresses of these schemes while it is there.
class UrlOpener : public QObject {
    Q_OBJECT

public:
    explicit UrlOpener(std::vector<const char*> schemes) : _schemes(std::move(schemes)) {
        for (const char* const each : _schemes)
            QDesktopServices::setUrlHandler(QString::fromLatin1(each), this, "open");
    }
    ~UrlOpener() override {
        for (const char* const each : _schemes)
            QDesktopServices::unsetUrlHandler(QString::fromLatin1(each));
    }

    std::vector<std::string> opened;

public slots: // the toolkit calls it by name
    void open(const QUrl& url) { opened.push_back(url.toString().toStdString()); }

private:
    const std::vector<const char*> _schemes;
};

} // namespace brindle::desktop
