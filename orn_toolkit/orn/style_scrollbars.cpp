#include "orn/style_scrollbars.h"

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleFactory>

namespace orn {

namespace {
constexpr char vertical_sheet[] =
    "QScrollBar:vertical {    border: none;    background-color:rgb(47,47,47);    width:11px;"
    "        margin: 0px 0px 0px 0px;}"
    "QScrollBar::handle:vertical {    border: 1px solid black;    border-radius: 5px;"
    "    background: rgb(0,0,0);    min-height: 20px;}"
    "QScrollBar::add-line:vertical {    background: black;    height: 0px;"
    "    subcontrol-position: bottom;    subcontrol-origin: margin;}"
    "QScrollBar::sub-line:vertical {    background: black;    height: 0px;"
    "    subcontrol-position: top;    subcontrol-origin: margin;}";
constexpr char horizontal_sheet[] =
    "QScrollBar:horizontal {    border: none;    background-color:rgb(47,47,47);    height:11px;"
    "        margin: 0px 0px 0px 0px;}"
    "QScrollBar::handle:horizontal {    border: 1px solid black;    border-radius: 5px;"
    "    background: rgb(0,0,0);    min-width: 20px;}"
    "QScrollBar::add-line:horizontal {    background: black;    width: 0px;"
    "    subcontrol-position: left;    subcontrol-origin: margin;}"
    "QScrollBar::sub-line:horizontal {    background: black;    width: 0px;"
    "    subcontrol-position: right;    subcontrol-origin: margin;}";
} // namespace

void style_scrollbars(QAbstractScrollArea* area)
{
    QStyle* fusion = QStyleFactory::create(QStringLiteral("fusion"));
    fusion->setParent(area);
    area->verticalScrollBar()->setStyle(fusion);
    area->horizontalScrollBar()->setStyle(fusion);
    area->verticalScrollBar()->setStyleSheet(QLatin1String(vertical_sheet));
    area->horizontalScrollBar()->setStyleSheet(QLatin1String(horizontal_sheet));
}

} // namespace orn
