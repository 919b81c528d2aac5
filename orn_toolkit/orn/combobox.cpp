#include "orn/combobox.h"

#include "orn/palette.h"

#include <QWheelEvent>

namespace orn {

namespace {
// The list view shares the box's dark ground; its scroll bar is the toolkit's
// slim black one without arrow buttons.
constexpr char combobox_sheet[] =
    "QComboBox{padding-left:0.2em;margin-top:0px;margin-bottom:0px;outline:0px;"
    "selection-background-color:rgb(200,210,200);font-size:12px;background-color:rgb(36,36,36);"
    "border: 1px solid rgb(99,99,99);selection-color:#000;}"
    "QComboBox QAbstractItemView{margin-top:0px;margin-bottom:0px;outline:0px;"
    "selection-background-color:rgb(200,210,200);background-color:rgb(36,36,36);"
    "border: 1px solid rgb(99,99,99);selection-color:#000;color:rgb(198,213,210);}"
    "QComboBox QAbstractItemView::item{padding-left:0.5em;}"
    "QComboBox::drop-down{outline:0px;selection-background-color:rgb(200,210,200);"
    "border-width:0px;border-left:1px solid rgb(99,99,99);}"
    "QComboBox::down-arrow{image:url(:/gui/combobox/arrow.png);width:20;}";
constexpr char combobox_scrollbar_sheet[] =
    "QScrollBar:vertical{border: none; background-color:rgb(47,47,47); width:11px; "
    "margin: 0px 0px 0px 0px; }"
    "QScrollBar::handle:vertical{border: 1px solid black; border-radius: 5px; "
    "background: rgb(0,0,0); min-height: 20px;}"
    "QScrollBar::add-line:vertical{background: black; height: 0px; "
    "subcontrol-position: bottom; subcontrol-origin: margin;}"
    "QScrollBar::sub-line:vertical{background: black; height: 0px; "
    "subcontrol-position: top; subcontrol-origin: margin;}";
} // namespace

combobox::combobox(QWidget* parent) : QComboBox(parent)
{
    setStyleSheet(QLatin1String(combobox_sheet) + QLatin1String(sheet::tooltip) +
                  QLatin1String(combobox_scrollbar_sheet));
}

void combobox::mouseReleaseEvent(QMouseEvent* event)
{
    QComboBox::mouseReleaseEvent(event);
    emit clicked();
}

void combobox::wheelEvent(QWheelEvent* event)
{
    if (!ignore_wheel_) {
        QComboBox::wheelEvent(event);
        return;
    }
    // Left unhandled, the turn goes on to the parent, which may scroll instead.
    event->ignore();
}

} // namespace orn
