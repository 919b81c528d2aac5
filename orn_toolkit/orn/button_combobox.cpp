#include "orn/button_combobox.h"

#include <QPainter>

namespace orn {

button_combobox_popup::button_combobox_popup(QWidget* parent) : QWidget(parent) {}

button_combobox::button_combobox(QWidget* parent) : QComboBox(parent) {}

void button_combobox::set_paint_callback(std::function<void(QPainter&)> callback)
{
    paint_callback_ = std::move(callback);
    update();
}

void button_combobox::set_popup_widget(combo_box_widget* widget)
{
    popup_widget_ = widget;
    if (popup_widget_) {
        popup_widget_->hide();
    }
}

void button_combobox::showPopup()
{
    QComboBox::showPopup();
    if (swallow_popup_) {
        swallow_popup_ = false;
        update();
        return;
    }
    if (!popup_widget_) {
        return;
    }
    if (popup_widget_->isHidden()) {
        // The button may have changed windows since the widget was given.
        if (popup_widget_->parentWidget() != window()) {
            popup_widget_->setParent(window());
        }
        popup_widget_->move(mapTo(window(), QPoint(0, height())));
        popup_widget_->show();
        popup_widget_->raise();
    } else {
        popup_widget_->hide();
        hidePopup();
    }
}

void button_combobox::mousePressEvent(QMouseEvent* event)
{
    QComboBox::mousePressEvent(event);
    emit clicked();
    update();
}

void button_combobox::paintEvent(QPaintEvent* /*event*/)
{
    // The callback is the whole look; the base class never paints.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (paint_callback_) {
        paint_callback_(painter);
    }
}

} // namespace orn
