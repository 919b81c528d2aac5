#include "orn/combobox_lineedit.h"

#include <QTimer>

namespace orn {

combobox_lineedit::combobox_lineedit(QWidget* parent) : QLineEdit(parent) {}

void combobox_lineedit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // The mouse press that brought the focus would clear a selection made now.
    QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

} // namespace orn
