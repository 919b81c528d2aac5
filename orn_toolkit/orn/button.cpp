#include "orn/button.h"

#include "orn/merge_style_sheet.h"
#include "orn/palette.h"

#include <QPainter>
#include <QTimer>

namespace orn {

namespace {
constexpr char rest_sheet[] = "border:none;margin:2px 2px 2px 2px;";
// The frame takes the place of the margin, so the button's contents don't move.
constexpr char flash_sheet[] = "margin:0px 0px 0px 0px;border:2px solid rgb(222,222,222);";
constexpr int flash_milliseconds = 200;
} // namespace

button::button(const QString& text, QWidget* parent) : QPushButton(text, parent)
{
    merge_style_sheet(this, QLatin1String(rest_sheet));
    setFocusPolicy(Qt::NoFocus);
}

button::button(QWidget* parent, const QRect& rect) : button(QString(), parent)
{
    // The frame is drawn with a pen of width 2 centred on the rectangle's edges.
    highlight_rect_ = rect.adjusted(4, 4, 1, 1);
}

void button::deaktivate_highlight()
{
    if (!highlight_rect_.isValid()) {
        merge_style_sheet(this, QLatin1String(rest_sheet));
    }
    highlighted_ = false;
    update();
}

void button::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    if (!highlight_rect_.isValid()) {
        merge_style_sheet(this, QLatin1String(flash_sheet));
    }
    // Each release starts its own shot; the first to fire ends the flash.
    // The static analyzer loses track of the slot object that Qt's singleShot
    // template hands to QTimer and reports it as leaked inside qtimer.h, where no
    // NOLINT can reach; the call is hidden from it alone.
#ifndef __clang_analyzer__
    QTimer::singleShot(flash_milliseconds, this, &button::deaktivate_highlight);
#endif
    highlighted_ = true;
    update();
    // The base class is not asked: it would reset the press state and repeat the click.
    emit clicked(false);
    emit released();
    emit toggled(isChecked());
}

void button::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    if (highlight_rect_.isValid() && highlighted_) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const pixel_argb colour = palette::flash;
        painter.setPen(QPen(QColor(colour.r, colour.g, colour.b), 2));
        painter.drawRect(highlight_rect_);
    }
}

} // namespace orn
