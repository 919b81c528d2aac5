#include "orn/textedit.h"

#include "orn/palette.h"
#include "orn/style_scrollbars.h"

namespace orn {

namespace {
constexpr char textedit_sheet[] =
    "orn--textedit{background:rgb(38,38,38);color:rgb(198,213,210);"
    "border: 1px solid rgb(99,99,99);selection-background-color:rgb(198,213,210);"
    "selection-color: #000;}"
    "orn--textedit:disabled{border: 1px solid rgb(75,75,75);background: rgb(47,47,47);"
    "color: rgb(100,100,100);}";
} // namespace

textedit::textedit(QWidget* parent) : QTextEdit(parent)
{
    setStyleSheet(QLatin1String(textedit_sheet) + QLatin1String(sheet::tooltip));
    style_scrollbars(this);
}

} // namespace orn
