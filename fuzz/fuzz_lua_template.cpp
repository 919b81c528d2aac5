// Any bytes as a template for the tolerant reader: a filled record or its
// lua_syntax_error, nothing else, and never deeper recursion than its limit.

#include "fuzz_input_file.h"
#include "fuzz_target.h"
#include "preset/lua_lexer.h"
#include "preset/lua_template_reader.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    preset_settings preset;
    try {
        load_lua_template(preset, fuzz_input_file("lrtemplate", bytes));
    } catch (const lua_syntax_error&) {
    }
    return 0;
}
