#pragma once

#include <QProxyStyle>

namespace brindle::desktop {

/// The desktop's style, with what it lacks for `MenuView`: a check mark and an icon at one item, separators that are seen by dark, and
/// menus that scroll rather than fill the screen with columns. Thread: main.
class MenuStyle : public QProxyStyle {
public:
    /// The one that all menus have, over the style that the application has by now; dies with the application object.
    static QStyle* shared();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override;

private:
    void followApplication();
};

} // namespace brindle::desktop
