#pragma once

#include "orn/palette.h"
#include "orn/pixel_argb.h"

#include <QImage>
#include <QPushButton>
#include <QString>

#include <functional>

namespace orn {

// The buttons of all windows: a frame image stretched behind the text, composed
// into a style sheet at run time, and an icon painted over the button in colours
// computed from one grey source image, for rest, hover and disabled.
class button_dark : public QPushButton
{
    Q_OBJECT

public:
    // The icon of one state and its three colourings.
    class img_highlighter
    {
    public:
        // relative false: the source is an alpha mask, painted in the two colours.
        // relative true: the source keeps its shading; the hover image is shifted by
        // the difference between the highlight colour and the source's pixel closest
        // to the normal colour.
        void set_colors(pixel_argb highlight, pixel_argb normal);
        void load(const QString& path);
        std::function<void(QPainter&, QPushButton*)> get_custom_paint_ex(int x, int y);

        pixel_argb normal_color = palette::icon_normal;
        pixel_argb highlight_color = palette::icon_highlight;
        QString path;
        QImage normal;
        QImage highlight;
        QImage disabled;
        int width = 0;
        bool relative = false;
    };

    explicit button_dark(QWidget* parent = nullptr);
    button_dark(const QString& text, QWidget* parent = nullptr);

    // The frame images are ":/gui/button/<base>_normal.png" and "<base>_pressed.png".
    void set_image_base(const QString& base);
    // A style-sheet text-align value: "center", "left", ...
    void set_text_alignment(const QString& alignment);
    void set_style_flags(bool frame, bool checked_style, bool highlight, bool pressed_style);
    void set_padding(int pixels);
    void set_text_color(pixel_argb color);
    void clear_text_color();
    // The keyboard modifiers of the press in progress, none between presses.
    Qt::KeyboardModifiers pressed_modifiers() const { return pressed_modifiers_; }
    void fit_width(int left, int right);

    void set_icon(const QString& path, int x = -1, int y = -1,
                  pixel_argb highlight = palette::icon_highlight,
                  pixel_argb normal = palette::icon_normal);
    void set_icon_shifted(const QString& path, int x = -1, int y = -1,
                          pixel_argb highlight = palette::icon_highlight,
                          pixel_argb normal = palette::icon_normal);
    void set_checked_icon(const QString& path, int x = -1, int y = -1,
                          pixel_argb highlight = palette::icon_highlight,
                          pixel_argb normal = palette::icon_normal);
    void set_pressed_icon(const QString& path, int x = -1, int y = -1,
                          pixel_argb highlight = palette::icon_highlight,
                          pixel_argb normal = palette::icon_normal);
    void set_checked_icon_shifted(const QString& path, int x = -1, int y = -1,
                                  pixel_argb highlight = palette::icon_highlight,
                                  pixel_argb normal = palette::icon_normal);
    void set_pressed_icon_shifted(const QString& path, int x = -1, int y = -1,
                                  pixel_argb highlight = palette::icon_highlight,
                                  pixel_argb normal = palette::icon_normal);

    void set_uncheck_in_group(bool uncheck) { uncheck_in_group_ = uncheck; }
    void set_toggle_on_press(bool toggle) { toggle_on_press_ = toggle; }
    void set_stretch_icon(bool stretch, int icon_width = 0);
    void set_draw_base(bool draw) { draw_base_ = draw; }
    void set_paint_callback(std::function<void(QPainter&)> callback);
    void set_release_callback(std::function<void(QMouseEvent*)> callback);

    // Toolkit-wide: the base sheet of every dark button built after a change pads
    // its text by "0.25em 1em" when set. On by default.
    static bool em_padding;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;

    // Composes the style sheet from the pieces and flags below and sets it.
    void rebuild_style();

    // The pieces a subclass may replace before it rebuilds.
    QString base_style_;
    QString disabled_style_;
    QString disabled_style_colored_;
    QString checked_style_text_;
    QString pressed_style_text_;
    QString padding_template_;

private:
    enum class second_icon
    {
        checked,
        pressed
    };
    void set_main_icon(const QString& path, int x, int y, pixel_argb highlight, pixel_argb normal,
                       bool relative);
    void set_second_icon(second_icon which, const QString& path, int x, int y, pixel_argb highlight,
                         pixel_argb normal, bool relative);
    void update_icon(img_highlighter& record, const QString& path, pixel_argb highlight,
                     pixel_argb normal, bool relative);

    QString image_base_;
    QString text_alignment_;

    img_highlighter main_icon_;
    img_highlighter checked_icon_;
    img_highlighter pressed_icon_;

    bool frame_when_checked_ = false;
    bool highlight_when_checked_ = true;
    bool checked_style_ = true;
    bool pressed_style_ = true;
    bool uncheck_in_group_ = false;

    int padding_ = 0;
    pixel_argb text_color_{0, 0, 0};
    bool text_color_set_ = false;
    bool toggle_on_press_ = false;
    Qt::KeyboardModifiers pressed_modifiers_;

    std::function<void(QPainter&)> paint_callback_;
    std::function<void(QPainter&, QPushButton*)> icon_painter_;
    std::function<void(QMouseEvent*)> release_callback_;

    bool stretch_icon_ = false;
    int stretch_icon_width_ = 0;
    bool draw_base_ = true;
};

} // namespace orn
