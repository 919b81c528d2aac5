#pragma once

#include "orn/checkbox.h"

namespace orn {

// A check box whose indicator is a plain dark square instead of an image, for
// dense rows where the images would be too busy.
class checkbox_flat : public checkbox
{
    Q_OBJECT

public:
    explicit checkbox_flat(QWidget* parent = nullptr);
    explicit checkbox_flat(const QString& text, QWidget* parent = nullptr);
};

} // namespace orn
