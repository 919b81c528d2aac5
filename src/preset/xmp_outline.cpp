#include "preset/xmp_outline.h"

#include "preset/xml_cost_guard.h"

#include <QIODevice>
#include <QXmlStreamReader>

namespace {

// The namespace of every develop setting and of a preset's own description.
const QLatin1String develop_namespace("http://ns.adobe.com/camera-raw-settings/1.0/");

} // namespace

xmp_outline outline_xmp(QIODevice& device)
{
    xmp_outline outline;
    // The same guarded parse as the reader's, so that both stop at the same place.
    xml_cost_guard guarded_file(device);
    QXmlStreamReader reader(&guarded_file);
    for (const char* element : {"xmpmeta", "RDF", "Description"}) {
        outline.missing_element = QLatin1String(element);
        if (!reader.readNextStartElement() || reader.name() != QLatin1String(element)) {
            return outline;
        }
    }
    outline.missing_element.clear();
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (attribute.namespaceUri() == develop_namespace) {
            outline.has_develop_attributes = true;
            break;
        }
    }
    return outline;
}
