// Any text through the tolerant number conversion: always a defined double.

#include "fuzz_target.h"
#include "orn/parse_number.h"

#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    volatile double result = orn::parse_number(text, 1023.0);
    (void)result;
    return 0;
}
