#include "orn/combobox_lineedit.h"

#include <QMetaObject>

namespace orn {

combobox_lineedit::combobox_lineedit(QWidget* parent) : QLineEdit(parent) {}

void combobox_lineedit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // The mouse press that brought the focus would clear a selection made now, so
    // the selection is queued behind it. (Queued by name: the functor form of a
    // single-shot timer hands a slot object to Qt that the static analyser takes
    // for a leak.)
    QMetaObject::invokeMethod(this, "selectAll", Qt::QueuedConnection);
}

} // namespace orn
