#include "orn/radio.h"

#include "orn/palette.h"

namespace orn {

namespace {
constexpr char radio_sheet[] =
    "QRadioButton{spacing:4px;color:rgb(198,213,210);}"
    "QRadioButton:disabled{color:rgba(129,136,133,50%);}"
    "QRadioButton::indicator{width:14px;height:14px;}"
    "QRadioButton::indicator:enabled:unchecked{image:url(:/gui/radio/unchecked.png);}"
    "QRadioButton::indicator:enabled:checked{image:url(:/gui/radio/checked.png);}"
    "QRadioButton::indicator:!enabled:unchecked{image:url(:/gui/radio/disabled_unchecked.png);}"
    "QRadioButton::indicator:!enabled:checked{image:url(:/gui/radio/disabled_checked.png);}";
} // namespace

radio::radio(QWidget* parent) : radio(QString(), parent) {}

radio::radio(const QString& text, QWidget* parent) : QRadioButton(text, parent)
{
    setStyleSheet(QLatin1String(radio_sheet) + QLatin1String(sheet::tooltip));
}

} // namespace orn
