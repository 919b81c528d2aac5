#include "output/style_document.h"

#include <QXmlStreamWriter>

// A style is a flat list of key/value pairs under one root:
//   <?xml version="1.0"?>
//   <SL Engine="900">
//       <E K="Exposure" V="1.000000"/>
//   </SL>
// The writer works on a string, not a device, so it writes no encoding attribute.
void write_style_document(const style_values& values, QString* out)
{
    QXmlStreamWriter writer(out);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("SL"));
    writer.writeAttribute(QStringLiteral("Engine"), QStringLiteral("900"));
    for (auto it = values.constBegin(); it != values.constEnd(); ++it) {
        writer.writeStartElement(QStringLiteral("E"));
        writer.writeAttribute(QStringLiteral("K"), it.key());
        writer.writeAttribute(QStringLiteral("V"), it.value());
        writer.writeEndElement();
    }
    writer.writeEndElement();
    writer.writeEndDocument();
}
