#include "orn/qt_cell.h"

#include "orn/qt_layout.h"

#include <QWidget>

namespace orn::qt {

cell::backdrop_owner::~backdrop_owner()
{
    if (widget && widget->parent() == nullptr) {
        delete widget;
    }
}

cell::cell(QWidget* content) : background(std::make_shared<backdrop_owner>()), content(content)
{
    background->widget = new QWidget;
}

QWidget* cell::background_widget() const
{
    return background->widget;
}

QWidget* cell::content_widget() const
{
    return content;
}

void cell::set_margin(float value)
{
    margin_left = margin_right = margin_top = margin_bottom = value;
}

void cell::set_padding(float value)
{
    padding_left = padding_right = padding_top = padding_bottom = value;
}

void cell::animate_width(int target, float seconds)
{
    if (owner != nullptr) {
        owner->animate(column, target, -1, 0, seconds);
    }
}

void cell::animate_height(int target, float seconds)
{
    if (owner != nullptr) {
        owner->animate(-1, 0, row, target, seconds);
    }
}

void cell::animate_size(int target_width, int target_height, float seconds)
{
    if (owner != nullptr) {
        owner->animate(column, target_width, row, target_height, seconds);
    }
}

QSize cell::sizeHint() const
{
    if (fixed_width > 0 && fixed_height > 0) {
        return QSize(int(fixed_width), int(fixed_height));
    }
    return content ? content->sizeHint() : QSize();
}

QSize cell::minimumSize() const
{
    return content ? content->minimumSize() : QSize();
}

QSize cell::maximumSize() const
{
    return content ? content->maximumSize() : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

Qt::Orientations cell::expandingDirections() const
{
    return Qt::Horizontal | Qt::Vertical;
}

// The layout places the widgets itself; the item only remembers its area.
void cell::setGeometry(const QRect& rect)
{
    area = rect;
}

QRect cell::geometry() const
{
    return area;
}

bool cell::isEmpty() const
{
    return content == nullptr;
}

QWidget* cell::widget()
{
    return content;
}

} // namespace orn::qt
