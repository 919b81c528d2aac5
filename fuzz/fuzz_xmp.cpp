// Any bytes as an XMP preset: the reader never throws and never reads outside the
// data, whatever the document holds.

#include "fuzz_input_file.h"
#include "fuzz_target.h"
#include "preset/xmp_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    preset_settings preset;
    load_xmp(preset, fuzz_input_file("xmp", bytes));
    return 0;
}
