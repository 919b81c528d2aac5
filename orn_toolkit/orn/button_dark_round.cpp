#include "orn/button_dark_round.h"

namespace orn {

namespace {
constexpr char round_sheet[] =
    "QPushButton{color:rgb(146,152,148);border:1px solid rgb(75,75,75);"
    "background-color:rgb(68,68,68);border-radius:5px;font-size:12px;}"
    "QPushButton::checked{color:#d0d0d0;border:1px solid rgb(120,120,120);"
    "background-color:rgb(113,113,113);}"
    "QPushButton::hover{color:#d0d0d0;border:1px solid rgb(120,120,120);"
    "background-color:rgb(133,133,133);}";
} // namespace

button_dark_round::button_dark_round(QWidget* parent) : button_dark_round(QString(), parent) {}

button_dark_round::button_dark_round(const QString& text, QWidget* parent)
    : button_dark_flat(text, parent)
{
    base_style_ = QLatin1String(round_sheet) + QLatin1String(sheet::tooltip_flat);
    rebuild_style();
}

} // namespace orn
