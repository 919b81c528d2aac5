#include "orn/label.h"

#include <QPainter>

#include <utility>

namespace orn {

label::label(QWidget* parent) : QLabel(parent) {}

void label::set_paint_callback(std::function<void(QPainter&)> callback)
{
    paint_callback = std::move(callback);
    update();
}

void label::paintEvent(QPaintEvent* event)
{
    if (!paint_callback) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    paint_callback(painter);
}

} // namespace orn
