#pragma once

#include "orn/palette.h"
#include "orn/pixel_argb.h"

#include <QLineEdit>

namespace orn {

// A dark line edit with a one-pixel border whose colour the owner may change.
class lineedit : public QLineEdit
{
    Q_OBJECT

public:
    explicit lineedit(QWidget* parent = nullptr);

    void set_border_color(pixel_argb color);
};

} // namespace orn
