#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace brindle::desktop {

/// The program's text is UTF-8; a byte that is none comes out as U+FFFD. Thread: any.
inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromQString(const QString& text) {
    return text.toStdString();
}

} // namespace brindle::desktop
