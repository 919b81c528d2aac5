#include "orn/button_custom.h"

#include <QDragEnterEvent>

namespace orn {

button_custom::button_custom(QWidget* parent) : QPushButton(parent) {}

button_custom::button_custom(const QString& text, QWidget* parent) : QPushButton(text, parent) {}

void button_custom::dragEnterEvent(QDragEnterEvent* event)
{
    event->acceptProposedAction();
}

} // namespace orn
