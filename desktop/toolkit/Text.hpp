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

/// At most `length` UTF-16 code units, and an ellipsis where there were more. Surrogates stay in pairs.
inline QString shortened(const QString& text, qsizetype length) {
    if (text.size() <= length)
        return text;
    const bool tearsPair = length > 0 && text.at(length - 1).isHighSurrogate();
    return text.left(tearsPair ? length - 1 : length) + QChar(0x2026);
}

/// For a tool tip: the text as it is. Tool tips take what looks like HTML for that, and fetch what it names; empty stays empty.
inline QString toolTipText(const QString& text) {
    return text.isEmpty() ? QString() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

/// A name or title for one line on the screen. A feed may send megabytes, which take seconds to be laid out.
inline QString titleText(std::string_view title) {
    constexpr qsizetype length = 1000;
    constexpr std::size_t mostBytes = 3; // of UTF-8 for one code unit
    return shortened(toQString(title.substr(0, mostBytes * (length + 1))), length);
}

} // namespace brindle::desktop
