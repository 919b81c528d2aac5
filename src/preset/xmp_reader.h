#pragma once

// Reads .xmp presets: XMP metadata whose one rdf:Description holds the develop
// settings as attributes, and names and curves as child elements:
//
//     <x:xmpmeta xmlns:x="urn:x-example:meta">
//      <rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">
//       <rdf:Description rdf:about="" crs:Temperature="5000" crs:Shadows2012="+12">
//        <crs:Name><rdf:Alt><rdf:li xml:lang="x-default">Warm</rdf:li></rdf:Alt></crs:Name>
//        <crs:ToneCurvePV2012><rdf:Seq><rdf:li>0, 0</rdf:li>...</rdf:Seq></crs:ToneCurvePV2012>
//       </rdf:Description>
//      </rdf:RDF>
//     </x:xmpmeta>
//
// The walk follows this fixed path in one pass and compares local names only, so
// keys come out as in a template: `crs:Temperature` is `Temperature`.

#include "preset/preset_settings.h"

#include <QString>

class QIODevice;
class QXmlStreamReader;

// Fills `out` from the file at `path`. Throws nothing: a file that can't be opened
// is passed over in silence, and a foreign or broken document is logged and leaves
// `out` with what was read before.
void load_xmp(preset_settings& out, const QString& path);

// The same from a device open for reading, at its start.
void load_xmp_from(preset_settings& out, QIODevice& device);

// The text of the first non-empty `li` of an `Alt` list among the children of the
// current element; empty if there is none. Reads to the element's end.
QString read_alt_text(QXmlStreamReader& reader);

// One point per `li` of a `Seq` list among the children of the current element, from
// "x, y" texts; a part that isn't an integer counts 0. Reads to the element's end.
point_list read_seq_points(QXmlStreamReader& reader);
