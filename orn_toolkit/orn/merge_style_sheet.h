#pragma once

class QString;
class QWidget;

namespace orn {

// Merges declarations ("name: value;" ...) into the widget's style sheet: a
// property already present is replaced in place, a new one is appended. Repeated
// calls thus change a property instead of piling declarations up. Empty text does
// nothing; a missing final ';' is supplied.
void merge_style_sheet(QWidget* widget, QString text);

} // namespace orn
