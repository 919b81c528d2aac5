#include "orn/merge_style_sheet.h"

#include <QString>
#include <QWidget>

namespace orn {

void merge_style_sheet(QWidget* widget, QString text)
{
    if (text.isEmpty()) {
        return;
    }
    if (!text.endsWith(QLatin1Char(';'))) {
        text += QLatin1Char(';');
    }
    QString sheet = widget->styleSheet();
    int start = 0;
    while (start < text.size()) {
        const int end = text.indexOf(QLatin1Char(';'), start);
        const QString declaration = text.mid(start, end + 1 - start).trimmed();
        start = end + 1;
        // The head includes the colon, so "margin:" never matches "margin-top:".
        const int colon = declaration.indexOf(QLatin1Char(':'));
        if (colon < 0) {
            continue;
        }
        const QString head = declaration.left(colon + 1);
        const int found = sheet.indexOf(head);
        if (found < 0) {
            sheet += declaration;
            continue;
        }
        const int found_end = sheet.indexOf(QLatin1Char(';'), found);
        const int length = found_end < 0 ? sheet.size() - found : found_end + 1 - found;
        if (sheet.midRef(found, length) != declaration) {
            sheet.replace(found, length, declaration);
        }
    }
    widget->setStyleSheet(sheet);
}

} // namespace orn
