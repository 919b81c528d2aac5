#pragma once

#include "orn/button_dark.h"

namespace orn {

// A dark button without the raised frame: a blank frame image, smaller grey text
// that lightens when checked. Used for rows of tab-like choices.
class button_dark_flat : public button_dark
{
    Q_OBJECT

public:
    explicit button_dark_flat(QWidget* parent = nullptr);
    button_dark_flat(const QString& text, QWidget* parent = nullptr);
};

} // namespace orn
