#pragma once

#include <QString>
#include <QTextDocumentFragment>
#include <string>

namespace brindle::desktop {

/// What a person reads in a tool tip of that text.
inline std::string readToolTip(const QString& text) {
    return (Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text).toStdString();
}

} // namespace brindle::desktop
