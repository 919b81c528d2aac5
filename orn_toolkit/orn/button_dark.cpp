#include "orn/button_dark.h"

#include "orn/assert.h"

#include <QButtonGroup>
#include <QDebug>
#include <QDragEnterEvent>
#include <QFile>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace orn {

namespace {

// %1 is the image base, %2 the text alignment, %3 the padding and text colour.
constexpr char base_sheet_head[] =
    "QPushButton{color:rgb(198,213,210);border-style:none;border-width:3px;"
    "border-image:url(:/gui/button/%1_normal.png) 3 stretch;text-align:%2;%3;"
    "background:transparent;";
constexpr char base_sheet_em_padding[] = "padding: 0.25em 1em;";
constexpr char base_sheet_tail[] = "}QPushButton::hover{color:#f0f0f0;}";

constexpr char disabled_sheet[] = "QPushButton::disabled{color:rgba(129,136,133,50%);}";
constexpr char disabled_sheet_colored[] = "QPushButton::disabled{color:rgba(%1,%2,%3,50%);}";
constexpr char checked_sheet[] = "QPushButton::checked{border-style:none;border-width:3px;"
                                 "border-image:url(:/gui/button/%1_pressed.png) 3 stretch;}";
constexpr char pressed_sheet[] = "QPushButton::pressed{border-style:none;border-width:3px;"
                                 "border-image:url(:/gui/button/%1_pressed.png) 3 stretch;}";
constexpr char padding_sheet[] = "padding-left: %1px; padding-right: %1px;";
constexpr char text_color_sheet[] = "color:rgba(%1,%2,%3,%4);";

constexpr char default_image_base[] = "dark";
constexpr char default_alignment[] = "center";

// Flat sheets have no placeholders at all, and QString::arg would complain about
// each missing one; plain replacement fills what is there and leaves the rest.
void fill(QString& sheet, int number, const QString& value)
{
    sheet.replace(QLatin1Char('%') + QString::number(number), value);
}

pixel_argb to_pixel(QRgb rgb)
{
    return pixel_argb(quint8(qRed(rgb)), quint8(qGreen(rgb)), quint8(qBlue(rgb)),
                      quint8(qAlpha(rgb)));
}

QRgb to_rgb(pixel_argb pixel)
{
    return qRgba(pixel.r, pixel.g, pixel.b, pixel.a);
}

// Calls change(pixel) on every pixel of a 32-bit image, in place.
template<typename Change>
void for_each_pixel(QImage& image, Change change)
{
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            line[x] = to_rgb(change(to_pixel(line[x])));
        }
    }
}

int distance(pixel_argb x, pixel_argb y)
{
    return std::abs(x.r - y.r) + std::abs(x.g - y.g) + std::abs(x.b - y.b);
}

quint8 clamped(int value)
{
    return quint8(std::clamp(value, 0, 255));
}

} // namespace

bool button_dark::em_padding = true;

void button_dark::img_highlighter::set_colors(pixel_argb highlight_colour, pixel_argb normal_colour)
{
    highlight_color = highlight_colour;
    normal_color = normal_colour;
}

void button_dark::img_highlighter::load(const QString& image_path)
{
    path = image_path;
    normal = QImage(path).convertToFormat(QImage::Format_ARGB32);
    highlight = normal;
    disabled = normal;
    width = normal.width();

    if (!relative) {
        // The source is only a mask: its alpha, in the colour of each state.
        const auto paint = [](pixel_argb colour, bool halve_alpha) {
            return [colour, halve_alpha](pixel_argb pixel) {
                return pixel_argb(colour.r, colour.g, colour.b,
                                  halve_alpha ? quint8(pixel.a >> 1) : pixel.a);
            };
        };
        for_each_pixel(normal, paint(normal_color, false));
        for_each_pixel(highlight, paint(highlight_color, false));
        for_each_pixel(disabled, paint(normal_color, true));
        return;
    }

    // The source keeps its shading: find the pixel that stands for the normal
    // colour and move the hover image by that pixel's distance to the highlight.
    pixel_argb reference(0, 0, 0);
    int best = 765;
    for (int y = 0; y < normal.height() && best > 0; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(normal.constScanLine(y));
        for (int x = 0; x < normal.width() && best > 0; ++x) {
            const pixel_argb pixel = to_pixel(line[x]);
            const int d = distance(pixel, normal_color);
            if (d < best) {
                best = d;
                reference = pixel;
            }
        }
    }
    const int delta_r = highlight_color.r - reference.r;
    const int delta_g = highlight_color.g - reference.g;
    const int delta_b = highlight_color.b - reference.b;
    for_each_pixel(highlight, [&](pixel_argb pixel) {
        return pixel_argb(clamped(pixel.r + delta_r), clamped(pixel.g + delta_g),
                          clamped(pixel.b + delta_b), pixel.a);
    });
    for_each_pixel(disabled, [](pixel_argb pixel) {
        pixel.a = quint8(pixel.a >> 1);
        return pixel;
    });
}

std::function<void(QPainter&, QPushButton*)>
button_dark::img_highlighter::get_custom_paint_ex(int x, int y)
{
    return [this, x, y](QPainter& painter, QPushButton* button) {
        auto* bd = qobject_cast<button_dark*>(button);
        ORN_ASSERT(bd);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);

        const bool checked_look =
            bd->highlight_when_checked_ && bd->isCheckable() && bd->isChecked();
        const QImage& image = !bd->isEnabled()                   ? disabled
                              : bd->underMouse() || checked_look ? highlight
                                                                 : normal;
        if (!bd->stretch_icon_) {
            const int left = x == -1 ? (bd->width() - image.width()) / 2 : x;
            const int top = y == -1 ? (bd->height() - image.height()) / 2 : y;
            painter.drawImage(QPoint(left, top), image);
        } else if (bd->stretch_icon_width_ == 0) {
            painter.drawImage(bd->rect(), image);
        } else {
            // Keep the button's proportions at the given width, centred.
            const int target_width = bd->stretch_icon_width_;
            const int target_height = qRound(double(target_width) / bd->width() * bd->height());
            painter.drawImage(QRect((bd->width() - target_width) / 2,
                                    (bd->height() - target_height) / 2, target_width,
                                    target_height),
                              image);
        }

        if (bd->frame_when_checked_ && bd->isCheckable() && bd->isChecked()) {
            const pixel_argb colour = palette::icon_normal;
            painter.setPen(QPen(QColor(colour.r, colour.g, colour.b), 2.0));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(QRectF(bd->rect()));
        }
    };
}

button_dark::button_dark(QWidget* parent) : button_dark(QString(), parent) {}

button_dark::button_dark(const QString& text, QWidget* parent)
    : QPushButton(text, parent),
      base_style_(QLatin1String(base_sheet_head) +
                  (em_padding ? QLatin1String(base_sheet_em_padding) : QLatin1String()) +
                  QLatin1String(base_sheet_tail) + QLatin1String(sheet::tooltip)),
      disabled_style_(QLatin1String(disabled_sheet)),
      disabled_style_colored_(QLatin1String(disabled_sheet_colored)),
      checked_style_text_(QLatin1String(checked_sheet)),
      pressed_style_text_(QLatin1String(pressed_sheet)),
      padding_template_(QLatin1String(padding_sheet)),
      image_base_(QLatin1String(default_image_base)),
      text_alignment_(QLatin1String(default_alignment))
{
    setFocusPolicy(Qt::NoFocus);
    rebuild_style();
}

void button_dark::set_image_base(const QString& base)
{
    image_base_ = base;
    rebuild_style();
}

void button_dark::set_text_alignment(const QString& alignment)
{
    text_alignment_ = alignment;
    rebuild_style();
}

void button_dark::set_style_flags(bool frame, bool checked_style, bool highlight,
                                  bool pressed_style)
{
    frame_when_checked_ = frame;
    checked_style_ = checked_style;
    highlight_when_checked_ = highlight;
    pressed_style_ = pressed_style;
    rebuild_style();
}

void button_dark::set_padding(int pixels)
{
    padding_ = pixels;
    rebuild_style();
}

void button_dark::set_text_color(pixel_argb color)
{
    text_color_ = color;
    text_color_set_ = true;
    rebuild_style();
}

void button_dark::clear_text_color()
{
    text_color_set_ = false;
    rebuild_style();
}

void button_dark::fit_width(int left, int right)
{
    setFixedWidth(left + main_icon_.width + right);
}

void button_dark::set_icon(const QString& path, int x, int y, pixel_argb highlight,
                           pixel_argb normal)
{
    set_main_icon(path, x, y, highlight, normal, false);
}

void button_dark::set_icon_shifted(const QString& path, int x, int y, pixel_argb highlight,
                                   pixel_argb normal)
{
    set_main_icon(path, x, y, highlight, normal, true);
}

void button_dark::set_checked_icon(const QString& path, int x, int y, pixel_argb highlight,
                                   pixel_argb normal)
{
    set_second_icon(second_icon::checked, path, x, y, highlight, normal, false);
}

void button_dark::set_pressed_icon(const QString& path, int x, int y, pixel_argb highlight,
                                   pixel_argb normal)
{
    set_second_icon(second_icon::pressed, path, x, y, highlight, normal, false);
}

void button_dark::set_checked_icon_shifted(const QString& path, int x, int y, pixel_argb highlight,
                                           pixel_argb normal)
{
    set_second_icon(second_icon::checked, path, x, y, highlight, normal, true);
}

void button_dark::set_pressed_icon_shifted(const QString& path, int x, int y, pixel_argb highlight,
                                           pixel_argb normal)
{
    set_second_icon(second_icon::pressed, path, x, y, highlight, normal, true);
}

void button_dark::set_stretch_icon(bool stretch, int icon_width)
{
    stretch_icon_ = stretch;
    stretch_icon_width_ = icon_width;
    update();
}

void button_dark::set_paint_callback(std::function<void(QPainter&)> callback)
{
    paint_callback_ = std::move(callback);
    update();
}

void button_dark::set_release_callback(std::function<void(QMouseEvent*)> callback)
{
    release_callback_ = std::move(callback);
}

void button_dark::update_icon(img_highlighter& record, const QString& path, pixel_argb highlight,
                              pixel_argb normal, bool relative)
{
    record.relative = relative;
    record.set_colors(highlight, normal);
    // A missing icon is a slip in the caller's resources, not a reason to stop:
    // the button stays usable, just without its picture.
    if (!QFile::exists(path)) {
        qDebug() << "Can't open icon" << path;
    }
    record.load(path);
}

void button_dark::set_main_icon(const QString& path, int x, int y, pixel_argb highlight,
                                pixel_argb normal, bool relative)
{
    update_icon(main_icon_, path, highlight, normal, relative);
    icon_painter_ = main_icon_.get_custom_paint_ex(x, y);
    update();
}

void button_dark::set_second_icon(second_icon which, const QString& path, int x, int y,
                                  pixel_argb highlight, pixel_argb normal, bool relative)
{
    const bool for_checked = which == second_icon::checked;
    img_highlighter& record = for_checked ? checked_icon_ : pressed_icon_;
    if (for_checked) {
        // The icon shows the checked state; the pressed frame would say it twice.
        // The sheet is left as it is until something else rebuilds it.
        checked_style_ = false;
    }
    update_icon(record, path, highlight, normal, relative);
    const auto first = main_icon_.get_custom_paint_ex(x, y);
    const auto second = record.get_custom_paint_ex(x, y);
    icon_painter_ = [first, second, for_checked](QPainter& painter, QPushButton* button) {
        const bool second_state = for_checked ? button->isChecked() : button->isDown();
        (second_state ? second : first)(painter, button);
    };
    update();
}

void button_dark::rebuild_style()
{
    QString sheet = base_style_;
    if (checked_style_) {
        sheet += checked_style_text_;
    }
    if (pressed_style_) {
        sheet += pressed_style_text_;
    }
    fill(sheet, 1, image_base_);
    fill(sheet, 2, text_alignment_);

    QString extra;
    if (padding_ != 0) {
        extra += QString(padding_template_).arg(padding_);
    }
    if (text_color_set_) {
        extra += QString(QLatin1String(text_color_sheet))
                     .arg(text_color_.r)
                     .arg(text_color_.g)
                     .arg(text_color_.b)
                     .arg(text_color_.a);
        sheet += QString(disabled_style_colored_)
                     .arg(text_color_.r)
                     .arg(text_color_.g)
                     .arg(text_color_.b);
    } else {
        sheet += disabled_style_;
    }
    fill(sheet, 3, extra);
    setStyleSheet(sheet);
}

void button_dark::mousePressEvent(QMouseEvent* event)
{
    pressed_modifiers_ = event->modifiers();
    if (isCheckable() && toggle_on_press_) {
        // Left holds the button checked while pressed; right latches it.
        if (event->button() == Qt::LeftButton) {
            setChecked(true);
            return;
        }
        if (event->button() == Qt::RightButton) {
            setChecked(!isChecked());
            return;
        }
    }
    QPushButton::mousePressEvent(event);
}

void button_dark::mouseReleaseEvent(QMouseEvent* event)
{
    QButtonGroup* button_group = group();
    if (button_group && button_group->exclusive() && uncheck_in_group_ &&
        button_group->checkedButton() == this && isChecked()) {
        // An exclusive group never lets its checked button go; step out of that
        // rule for this one click so that it unchecks.
        button_group->setExclusive(false);
        QPushButton::mouseReleaseEvent(event);
        setChecked(false);
        button_group->setExclusive(true);
        if (release_callback_) {
            release_callback_(event);
        }
        return;
    }
    if (isCheckable() && isChecked() && toggle_on_press_ && event->button() == Qt::LeftButton) {
        setChecked(false);
    }
    if (release_callback_) {
        release_callback_(event);
    }
    QPushButton::mouseReleaseEvent(event);
    pressed_modifiers_ = Qt::KeyboardModifiers();
}

void button_dark::paintEvent(QPaintEvent* event)
{
    if (draw_base_) {
        QPushButton::paintEvent(event);
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (icon_painter_) {
        icon_painter_(painter, this);
    }
    if (paint_callback_) {
        paint_callback_(painter);
    }
}

void button_dark::dragEnterEvent(QDragEnterEvent* event)
{
    event->acceptProposedAction();
}

} // namespace orn
