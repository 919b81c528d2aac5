#include "orn/button_dark_flat.h"

namespace orn {

namespace {
// No placeholders: a flat button ignores the image base, alignment and padding.
constexpr char flat_sheet[] =
    "QPushButton{color:rgb(146,152,148);border-style:none;border-width:3px;"
    "border-image:url(:/gui/button/blank_normal.png) 3 stretch;font-size:12px;}"
    "QPushButton::hover{color:#d0d0d0;}";
// The spaces after "checked" are in the sheet as it has always been written.
constexpr char flat_checked_sheet[] = "QPushButton::checked      {color:rgb(228,228,228);}"
                                      "QPushButton::checked:hover{color:rgb(255,255,255);}";
constexpr char flat_pressed_sheet[] = "QPushButton::checked      {color:rgb(228,228,228);}";
} // namespace

button_dark_flat::button_dark_flat(QWidget* parent) : button_dark_flat(QString(), parent) {}

button_dark_flat::button_dark_flat(const QString& text, QWidget* parent) : button_dark(text, parent)
{
    base_style_ = QLatin1String(flat_sheet) + QLatin1String(sheet::tooltip_flat);
    checked_style_text_ = QLatin1String(flat_checked_sheet);
    pressed_style_text_ = QLatin1String(flat_pressed_sheet);
    setContentsMargins(0, 0, 0, 0);
    rebuild_style();
}

} // namespace orn
