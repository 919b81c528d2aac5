// The whole road from bytes to document: reader (XMP for a text that opens with
// markup, else template), inspection, conversion in every colour space, and the
// document writer.

#include "convert/lut_set.h"
#include "fuzz_input_file.h"
#include "fuzz_target.h"
#include "preset/preset_file.h"

#include <QStringList>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    const char* suffix = bytes.trimmed().startsWith('<') ? "xmp" : "lrtemplate";
    preset_settings preset;
    if (read_preset_file(fuzz_input_file(suffix, bytes), preset).status !=
        preset_read_status::read) {
        return 0;
    }
    static const lut_set luts;
    bool white_balance = false;
    bool rgb_table = false;
    bool calibration = false;
    luts.inspect_preset(preset, white_balance, rgb_table, calibration);
    static const QStringList colour_spaces{QStringLiteral("raw"),       QStringLiteral("adobe"),
                                           QStringLiteral("srgb"),      QStringLiteral("prophoto"),
                                           QStringLiteral("widegamut"), QStringLiteral("other")};
    for (const QString& colour_space : colour_spaces) {
        QString document;
        luts.convert_preset(preset, &document, colour_space);
        if (!document.endsWith(QLatin1String("</SL>\n"))) {
            __builtin_trap();
        }
    }
    return 0;
}
