#include "orn/clickable_label.h"

#include <QMouseEvent>

namespace orn {

namespace {

const QString decoration_sheet =
    QStringLiteral("QLabel { text-decoration: %1; }QToolTip { border:1px solid rgb(99,99,99);"
                   "background-image:none;background-color:rgb(47,47,47); }");

} // namespace

clickable_label::clickable_label(const QString& text, QWidget* parent) : QLabel(text, parent) {}

void clickable_label::set_underline_on_hover(bool underline)
{
    underline_on_hover = underline;
}

Qt::KeyboardModifiers clickable_label::pressed_modifiers() const
{
    return modifiers;
}

// The click fires on the press, not the release, so that a link reacts at once
// and a receiver can still read the modifiers of the press.
void clickable_label::mousePressEvent(QMouseEvent* event)
{
    modifiers = event->modifiers();
    if (event->button() == Qt::LeftButton) {
        emit clicked();
    }
}

void clickable_label::mouseReleaseEvent(QMouseEvent* event)
{
    QLabel::mouseReleaseEvent(event);
    modifiers = Qt::NoModifier;
}

void clickable_label::enterEvent(QEvent* event)
{
    QLabel::enterEvent(event);
    if (underline_on_hover) {
        set_text_decoration(QStringLiteral("underline"));
    }
}

void clickable_label::leaveEvent(QEvent* event)
{
    QLabel::leaveEvent(event);
    if (underline_on_hover) {
        set_text_decoration(QStringLiteral("none"));
    }
}

void clickable_label::set_text_decoration(const QString& decoration)
{
    setStyleSheet(decoration_sheet.arg(decoration));
}

} // namespace orn
