#include "preset/xmp_reader.h"

#include "preset/xml_cost_guard.h"

#include <QDebug>
#include <QFile>
#include <QXmlStreamReader>

namespace {

// The namespace of the develop settings and their lists, and RDF's own.
const QLatin1String develop_namespace("http://ns.adobe.com/camera-raw-settings/1.0/");
const QLatin1String rdf_namespace("http://www.w3.org/1999/02/22-rdf-syntax-ns#");

// The text of the current element with that of all its descendants, as
// QXmlStreamReader::readElementText(IncludeChildElements) gives it. That one recurses
// once per nested element; this walk keeps only a count, so a file's depth can't
// exhaust the stack.
QString element_text(QXmlStreamReader& reader)
{
    QString text;
    qint64 open_children = 0;
    while (true) {
        switch (reader.readNext()) {
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            text += reader.text();
            break;
        case QXmlStreamReader::StartElement:
            ++open_children;
            break;
        case QXmlStreamReader::EndElement:
            if (open_children == 0) {
                return text;
            }
            --open_children;
            break;
        default:
            if (reader.hasError() || reader.atEnd()) {
                return text;
            }
            break;
        }
    }
}

// Goes through the children of the current element; each child named `list_name` has
// its own children handed to `read_item`, every other child is skipped.
template<typename Read_item>
void for_each_list_item(QXmlStreamReader& reader, QLatin1String list_name, Read_item read_item)
{
    while (reader.readNextStartElement()) {
        if (reader.name() != list_name) {
            reader.skipCurrentElement();
            continue;
        }
        while (reader.readNextStartElement()) {
            read_item();
        }
    }
}

// A false answer of readNextStartElement is also the normal end of a list: only a
// real error is worth a line.
void warn_on_error(const QXmlStreamReader& reader)
{
    if (reader.error() != QXmlStreamReader::NoError) {
        qWarning() << reader.error() << reader.errorString();
    }
}

// Reads the next start element and checks its local name; false when there is none
// or it is another.
bool enter(QXmlStreamReader& reader, QLatin1String name, const char* missing_message)
{
    if (!reader.readNextStartElement()) {
        warn_on_error(reader);
        return false;
    }
    if (reader.name() != name) {
        qCritical("%s", missing_message);
        return false;
    }
    return true;
}

void read_curve(QXmlStreamReader& reader, point_list& member, const char* label)
{
    member = read_seq_points(reader);
    qDebug() << label << member;
}

void read_description_children(QXmlStreamReader& reader, preset_settings& out)
{
    while (reader.readNextStartElement()) {
        const QStringRef name = reader.name();
        if (name == QLatin1String("Name")) {
            out.name = read_alt_text(reader);
            qDebug() << "Name ->" << out.name;
        } else if (name == QLatin1String("Description")) {
            out.description = read_alt_text(reader);
            qDebug() << "Description ->" << out.description;
        } else if (name == QLatin1String("ToneCurvePV2012") || name == QLatin1String("ToneCurve")) {
            // The old master curve shares the member, and the log text, with the new one.
            read_curve(reader, out.tone_curve, "ToneCurvePV2012 -> ");
        } else if (name == QLatin1String("ToneCurvePV2012Red")) {
            read_curve(reader, out.tone_curve_red, "ToneCurvePV2012Red -> ");
        } else if (name == QLatin1String("ToneCurvePV2012Green")) {
            read_curve(reader, out.tone_curve_green, "ToneCurvePV2012Green -> ");
        } else if (name == QLatin1String("ToneCurvePV2012Blue")) {
            read_curve(reader, out.tone_curve_blue, "ToneCurvePV2012Blue -> ");
        } else {
            qDebug() << "Skipping" << name;
            if (reader.namespaceUri() == develop_namespace) {
                out.passed_over.append(name.toString());
            }
            reader.skipCurrentElement();
        }
    }
    warn_on_error(reader);
}

} // namespace

QString read_alt_text(QXmlStreamReader& reader)
{
    QString result;
    for_each_list_item(reader, QLatin1String("Alt"), [&reader, &result] {
        if (reader.name() == QLatin1String("li") && result.isEmpty()) {
            result = element_text(reader);
        } else {
            reader.skipCurrentElement();
        }
    });
    return result;
}

point_list read_seq_points(QXmlStreamReader& reader)
{
    point_list points;
    for_each_list_item(reader, QLatin1String("Seq"), [&reader, &points] {
        if (reader.name() != QLatin1String("li")) {
            reader.skipCurrentElement();
            return;
        }
        // "x, y": before the first comma, and between the first and the second.
        const QString text = element_text(reader);
        const int first_comma = text.indexOf(QLatin1Char(','));
        const int second_comma =
            first_comma < 0 ? -1 : text.indexOf(QLatin1Char(','), first_comma + 1);
        const QStringRef x = text.leftRef(first_comma);
        const QStringRef y =
            first_comma < 0 ? QStringRef()
                            : text.midRef(first_comma + 1,
                                          second_comma < 0 ? -1 : second_comma - first_comma - 1);
        points.append(QPoint(x.toInt(nullptr, 10), y.toInt(nullptr, 10)));
    });
    return points;
}

void load_xmp(preset_settings& out, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    load_xmp_from(out, file);
}

void load_xmp_from(preset_settings& out, QIODevice& device)
{
    // The parser reads the bytes itself and so decides the encoding. It resolves no
    // external entities and keeps its limit on entity expansion; the guard keeps the
    // rest of its work in proportion to the file.
    xml_cost_guard guarded_file(device);
    QXmlStreamReader reader(&guarded_file);

    if (!enter(reader, QLatin1String("xmpmeta"), "No xmpmeta element found at start of document") ||
        !enter(reader, QLatin1String("RDF"), "No RDF element found at start of document") ||
        !enter(reader, QLatin1String("Description"),
               "No Description element found at start of document")) {
        return;
    }

    // Only local names count: `crs:Temperature` is `Temperature`, `rdf:about` is
    // `about`, and of two attributes that differ by prefix alone the later wins.
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QString name = attribute.name().toString();
        const QString value = attribute.value().toString();
        out.settings.insert(name, value);
        // A photo's metadata is in any namespace but these two (rdf:about names the
        // Description). A preset has none, and the set stays empty at no cost.
        if (attribute.namespaceUri() == develop_namespace) {
            out.foreign_keys.remove(name);
        } else if (attribute.namespaceUri() != rdf_namespace) {
            out.foreign_keys.insert(name);
        }
        qDebug() << name << "->" << value;
    }

    // The walk ends with the Description's children: whatever follows in the
    // document, a second Description or broken XML, is never read.
    read_description_children(reader, out);
}
