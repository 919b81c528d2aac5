#include "orn/button_html.h"

#include <QPainter>
#include <QPixmap>
#include <QTextDocument>

namespace orn {

button_html::button_html(const QString& html, QWidget* parent, const QRect& rect)
    : button(parent, rect)
{
    QTextDocument document;
    document.setHtml(html);
    QPixmap face(document.size().toSize());
    face.fill(Qt::transparent);
    {
        QPainter painter(&face);
        document.drawContents(&painter);
    }
    setIcon(QIcon(face));
    setIconSize(face.size());
}

} // namespace orn
