#include "orn/checkbox.h"

#include "orn/palette.h"

namespace orn {

namespace {

constexpr char base_sheet[] = "QCheckBox{spacing:%1px;color:rgb(%2,%3,%4);}";

constexpr char both_images_sheet[] =
    "QCheckBox::indicator:enabled:unchecked{image:url(%3);border:1px solid rgb(99,99,99);"
    "width:14px;height:14px;}"
    "QCheckBox::indicator:enabled:checked{image:url(%2);border:3px solid rgb(255,255,255);"
    "width:10px;height:10px;}"
    "QCheckBox::indicator:!enabled:unchecked{image:url(%3);border:1px solid rgb(99,99,99);"
    "width:14px;height:14px;}"
    "QCheckBox::indicator:!enabled:checked{image:url(%2);border:3px solid rgb(255,255,255);"
    "width:10px;height:10px;}";

constexpr char checked_image_sheet[] =
    "QCheckBox::indicator:enabled:unchecked{image:url(:/gui/checkbox/unchecked.png);}"
    "QCheckBox::indicator:enabled:checked{image:url(%2);border:3px solid rgb(255,255,255);"
    "width:10px;height:10px;}"
    "QCheckBox::indicator:!enabled:unchecked{image:url(:/gui/checkbox/disabled_unchecked.png);}"
    "QCheckBox::indicator:!enabled:checked{image:url(%2);border:3px solid rgb(255,255,255);"
    "width:10px;height:10px;}";

constexpr char toolkit_images_sheet[] =
    "QCheckBox::indicator:enabled:unchecked{image:url(:/gui/checkbox/unchecked.png);}"
    "QCheckBox::indicator:enabled:checked{image:url(:/gui/checkbox/checked.png);}"
    "QCheckBox::indicator:!enabled:unchecked{image:url(:/gui/checkbox/disabled_unchecked.png);}"
    "QCheckBox::indicator:!enabled:checked{image:url(:/gui/checkbox/disabled_checked.png);}";

// The checked square's 3-pixel frame takes 4 pixels from its inside, so both
// states keep the same outer size.
constexpr char colour_sheet[] = "QCheckBox::indicator:unchecked{background-color:rgba(%2,%3,%4,%5);"
                                "border:1px solid rgb(99,99,99);width:14px;height:14px;}"
                                "QCheckBox::indicator:checked{background-color:rgba(%2,%3,%4,%5);"
                                "border:3px solid rgb(255,255,255);width:10px;height:10px;}";

// Indicator sheets number their placeholders from 2 on; fill by plain replacement.
QString filled(const char* sheet, std::initializer_list<std::pair<int, QString>> values)
{
    QString text = QLatin1String(sheet);
    for (const auto& [number, value] : values) {
        text.replace(QLatin1Char('%') + QString::number(number), value);
    }
    return text;
}

} // namespace

checkbox::checkbox(QWidget* parent) : checkbox(QString(), parent) {}

checkbox::checkbox(const QString& text, QWidget* parent) : QCheckBox(text, parent)
{
    set_look(4, pixel_argb(0, 0, 0, 0), QString(), QString(), palette::text);
}

void checkbox::set_look(int spacing, pixel_argb indicator_color, const QString& checked_image,
                        const QString& unchecked_image, pixel_argb text_color)
{
    QString indicator;
    if (!checked_image.isEmpty() && !unchecked_image.isEmpty()) {
        indicator = filled(both_images_sheet, {{2, checked_image}, {3, unchecked_image}});
    } else if (!checked_image.isEmpty()) {
        indicator = filled(checked_image_sheet, {{2, checked_image}});
    } else if (indicator_color == pixel_argb(0, 0, 0, 0)) {
        indicator = QLatin1String(toolkit_images_sheet);
    } else {
        indicator = filled(colour_sheet, {{2, QString::number(indicator_color.r)},
                                          {3, QString::number(indicator_color.g)},
                                          {4, QString::number(indicator_color.b)},
                                          {5, QString::number(indicator_color.a)}});
    }
    const QString base = QString(QLatin1String(base_sheet))
                             .arg(spacing)
                             .arg(text_color.r)
                             .arg(text_color.g)
                             .arg(text_color.b);
    setStyleSheet(indicator + base + QLatin1String(sheet::tooltip));
}

} // namespace orn
