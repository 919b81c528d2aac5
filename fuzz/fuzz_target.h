#pragma once

#include <cstddef>
#include <cstdint>

// The two entry points libFuzzer calls, and that the corpus replay calls the same
// way without it. Every target defines the first; fuzz_quiet_log.cpp the second.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
