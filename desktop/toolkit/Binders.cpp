#include "desktop/toolkit/Binders.hpp"

#include "desktop/toolkit/ControlBinding.hpp"
#include "desktop/toolkit/Images.hpp"
#include "desktop/toolkit/Text.hpp"

#include <QAbstractButton>
#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSignalBlocker>
#include <cmath>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr qsizetype longestText = 20'000; ///< a paragraph of megabytes takes seconds to be laid out

/// Keeps an ampersand from becoming the mark of a letter on the keyboard.
QString literalText(std::string_view text) {
    return toQString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QColor toQColor(const Color& color) {
    const auto part = [](double value) { return static_cast<float>(value); };
    return QColor::fromRgbF(part(color.red), part(color.green), part(color.blue), part(color.alpha));
}

QIcon swatch(const Color& color, QSize size) {
    QPixmap pixmap(size);
    pixmap.fill(toQColor(color));
    return pixmap;
}

QFont toQFont(const Font& font, QFont fallback) {
    if (!font.name.empty())
        fallback.setFamily(toQString(font.name));
    if (font.size > 0)
        fallback.setPointSizeF(font.size);
    return fallback;
}

} // namespace

void bind(Control& control, QWidget* widget) {
    new ControlBinding(control, widget, {});
}

void bind(TextField& field, QLabel* label) {
    label->setTextFormat(Qt::PlainText);
    new ControlBinding(field, label, [&field, label] {
        label->setText(titleText(field.stringValue()));
        label->setForegroundRole(field.textColor() == TextField::Color::systemGray ? QPalette::PlaceholderText : QPalette::WindowText);
    });
}

void bind(TextField& field, QLineEdit* edit, std::function<void()> changed) {
    new ControlBinding(field, edit, [&field, edit] {
        edit->setReadOnly(!field.isEditable());
        // Setting a text moves the cursor, so what was typed is left alone.
        if (const QString text = toQString(field.stringValue()); edit->text() != text)
            edit->setText(text);
    });
    QObject::connect(edit, &QLineEdit::textEdited, edit, [&field, changed = std::move(changed)](const QString& text) {
        field.setStringValue(fromQString(text));
        if (changed)
            changed();
    });
}

void bind(TextView& view, QPlainTextEdit* edit) {
    edit->setReadOnly(true);
    new ControlBinding(view, edit, [&view, edit] {
        edit->setFont(toQFont(view.font(), edit->font()));
        // Of the markup that a text stood in, blank lines are left around it.
        edit->setPlainText(shortened(toQString(view.string()).trimmed(), longestText));
    });
}

void bind(Button& button, QAbstractButton* widget, std::function<void()> pressed) {
    widget->setCheckable(button.kind() != Button::Kind::push);
    new ControlBinding(button, widget, [&button, widget] {
        if (!button.title().empty())
            widget->setText(literalText(button.title()));
        widget->setChecked(button.state());
    });
    QObject::connect(widget, &QAbstractButton::clicked, widget, [&button, widget, pressed = std::move(pressed)] {
        button.press();
        // The widget has changed by itself, also where the model has not.
        widget->setChecked(button.state());
        if (pressed)
            pressed();
    });
}

void bind(ToolbarItem& item, QAbstractButton* widget, std::function<void()> pressed) {
    new ControlBinding(item, widget, {});
    QObject::connect(widget, &QAbstractButton::clicked, widget, std::move(pressed));
}

void bind(ProgressIndicator& indicator, QProgressBar* bar) {
    new ControlBinding(indicator, bar, [&indicator, bar] {
        constexpr int whole = 100;
        bar->setRange(0, indicator.isAnimating() ? 0 : whole);
        bar->setValue(static_cast<int>(std::lround(indicator.doubleValue())));
    });
}

void bind(ImageView& view, QLabel* label, Image::Size size) {
    new ControlBinding(view, label, [&view, label, size] {
        if (const auto& image = view.image())
            label->setPixmap(images::pixmap(*image, size, label->devicePixelRatioF()));
        else
            label->clear();
    });
}

void bind(NumberField& field, QDoubleSpinBox* box) {
    box->setRange(field.minimum(), field.maximum());
    box->setKeyboardTracking(false);
    new ControlBinding(field, box, [&field, box] {
        const QSignalBlocker blocker(box);
        box->setValue(field.doubleValue());
    });
    QObject::connect(box, &QDoubleSpinBox::valueChanged, box, [&field](double value) { field.choose(value); });
}

void bind(ColorWell& well, QAbstractButton* widget) {
    new ControlBinding(well, widget, [&well, widget] {
        widget->setIcon(swatch(well.color(), widget->iconSize()));
        widget->setAccessibleDescription(toQString(well.color().hexString()));
    });
    QObject::connect(widget, &QAbstractButton::clicked, widget, [&well, widget] {
        auto* const dialog = new QColorDialog(toQColor(well.color()), widget);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(dialog, &QColorDialog::colorSelected, widget, [&well](const QColor& color) {
            well.choose({color.redF(), color.greenF(), color.blueF(), color.alphaF()});
        });
        dialog->open();
    });
}

} // namespace brindle::desktop
