#include "orn/checkbox_flat.h"

#include "orn/palette.h"

namespace orn {

checkbox_flat::checkbox_flat(QWidget* parent) : checkbox_flat(QString(), parent) {}

checkbox_flat::checkbox_flat(const QString& text, QWidget* parent) : checkbox(text, parent)
{
    set_look(4, palette::input_ground, QString(), QString(), palette::text);
}

} // namespace orn
