#pragma once

#include "orn/pixel_argb.h"

#include <QCheckBox>

namespace orn {

// A check box in the toolkit's look. The indicator is either a pair of images or a
// plain coloured square; set_look chooses which.
class checkbox : public QCheckBox
{
    Q_OBJECT

public:
    // Starts with the toolkit's own indicator images and the palette's text colour.
    explicit checkbox(QWidget* parent = nullptr);
    explicit checkbox(const QString& text, QWidget* parent = nullptr);

    // Indicators, in order of precedence:
    // - both images: those two, framed, in every state (disabled looks the same);
    // - only the checked image: it, with the toolkit's unchecked images;
    // - no image and fully transparent black: the toolkit's four images;
    // - no image and another colour: a square of that colour, thick-framed when checked.
    void set_look(int spacing, pixel_argb indicator_color, const QString& checked_image,
                  const QString& unchecked_image, pixel_argb text_color);
};

} // namespace orn
