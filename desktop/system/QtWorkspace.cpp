#include "desktop/system/QtWorkspace.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QDesktopServices>
#include <QUrl>

namespace brindle::desktop {

void QtWorkspace::openURL(const URL& url) {
    const QUrl address(toQString(url.absoluteString()), QUrl::StrictMode);
    if (address.isValid() && !address.isRelative() && !address.isLocalFile())
        QDesktopServices::openUrl(address);
}

} // namespace brindle::desktop
