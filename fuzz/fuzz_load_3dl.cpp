// Any bytes as a .3dl table: a filled table or orn::exception, nothing else.

#include "convert/lut_3d.h"
#include "fuzz_target.h"
#include "orn/exception.h"

#include <QBuffer>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    lut_3d table;
    try {
        load_3dl(table, buffer, QStringLiteral("fuzz.3dl"));
        // Every corner of a loaded table must be reachable.
        (void)lookup(table, 0, 0, 0);
        (void)lookup(table, 255, 255, 255);
        (void)lookup(table, 17, 128, 250);
    } catch (const orn::exception&) {
    }
    return 0;
}
