#pragma once

#include <QMap>
#include <QString>

// Target key to value text. The map's order (QString's operator<, by UTF-16 code
// unit) is the order of the document, and a second store of a key replaces the
// first, so the order of the conversion's stages decides between writers.
using style_values = QMap<QString, QString>;

// Appends the whole style document for `values` to `*out`, which must be empty.
void write_style_document(const style_values& values, QString* out);
