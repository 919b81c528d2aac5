// Any bytes as a template, in whichever form the marker selects: a filled record
// or the reader's std::runtime_error, nothing else.

#include "fuzz_input_file.h"
#include "fuzz_target.h"
#include "preset/template_reader.h"

#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    preset_settings preset;
    try {
        load_template(preset, fuzz_input_file("lrtemplate", bytes));
    } catch (const std::runtime_error&) {
    }
    return 0;
}
