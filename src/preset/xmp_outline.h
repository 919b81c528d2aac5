#pragma once

// What an .xmp file is, before its settings are looked at. The XMP reader walks
// xmpmeta, RDF and Description and takes whatever it finds there; a random file,
// an HTML page or a photo's metadata sidecar leaves it with an empty or a foreign
// record and no complaint a caller could tell apart. This takes the reader's first
// steps again and says where they end.

#include <QString>

class QIODevice;

struct xmp_outline
{
    // The first element of xmpmeta, RDF and Description that the reader doesn't
    // find where it looks; empty when it reaches the Description.
    QString missing_element;
    // The Description has an attribute in the develop settings' namespace. A
    // photo's sidecar without develop settings has none.
    bool has_develop_attributes = false;
};

// Reads the start of a preset as the XMP reader does, from a device open for
// reading at its start.
xmp_outline outline_xmp(QIODevice& device);
