#pragma once

#include "orn/button.h"

namespace orn {

// An orn::button whose face is a piece of rich text, rendered once into its icon.
class button_html : public button
{
    Q_OBJECT

public:
    button_html(const QString& html, QWidget* parent, const QRect& rect = QRect());
};

} // namespace orn
