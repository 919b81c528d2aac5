#pragma once

#include "orn/button_dark_flat.h"

namespace orn {

// A flat button drawn as a rounded grey pill instead of a frame image.
class button_dark_round : public button_dark_flat
{
    Q_OBJECT

public:
    explicit button_dark_round(QWidget* parent = nullptr);
    button_dark_round(const QString& text, QWidget* parent = nullptr);
};

} // namespace orn
