#include "orn/lineedit.h"

namespace orn {

namespace {
// Style sheets spell the namespaced class orn::lineedit as "orn--lineedit".
constexpr char lineedit_sheet[] = "orn--lineedit{    background:rgb(38,38,38);    "
                                  "color:rgb(198,213,210);    border: 1px solid rgb(%1);    "
                                  "selection-background-color:rgb(198,213,210);    "
                                  "selection-color: #000;}"
                                  "orn--lineedit:disabled{    border: 1px solid rgb(75,75,75);    "
                                  "background: rgb(47,47,47);    color: rgb(100,100,100);}";
} // namespace

lineedit::lineedit(QWidget* parent) : QLineEdit(parent)
{
    set_border_color(palette::border);
}

void lineedit::set_border_color(pixel_argb color)
{
    const QString rgb = QStringLiteral("%1,%2,%3").arg(color.r).arg(color.g).arg(color.b);
    setStyleSheet(QString(QLatin1String(lineedit_sheet)).arg(rgb) + QLatin1String(sheet::tooltip));
}

} // namespace orn
