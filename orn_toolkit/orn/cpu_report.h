#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace orn {

// The four registers one cpuid leaf answers with.
struct cpuid_registers
{
    std::uint32_t eax = 0, ebx = 0, ecx = 0, edx = 0;
};

// What the processor and the operating system offer, as the CPU report lists it.
// Everything is false on a processor that isn't x86.
struct cpu_features
{
    // Vendor
    bool amd = false, intel = false;
    // Operating system
    bool os_64bit = false, os_avx = false, os_avx512 = false;
    // Hardware
    bool mmx = false, x64 = false, abm = false, rdrand = false, bmi1 = false, bmi2 = false,
         adx = false, mpx = false, prefetchwt1 = false;
    // 128-bit SIMD
    bool sse = false, sse2 = false, sse3 = false, ssse3 = false, sse4a = false, sse41 = false,
         sse42 = false, aes = false, sha = false;
    // 256-bit SIMD
    bool avx = false, xop = false, fma3 = false, fma4 = false, avx2 = false;
    // 512-bit SIMD
    bool avx512_f = false, avx512_cd = false, avx512_pf = false, avx512_er = false,
         avx512_vl = false, avx512_bw = false, avx512_dq = false, avx512_ifma = false,
         avx512_vbmi = false;
};

using cpuid_query = std::function<cpuid_registers(std::uint32_t leaf, std::uint32_t subleaf)>;
using xcr0_query = std::function<std::uint64_t()>;

// Reads the features from cpuid answers and the extended control register 0, which
// is only read when the processor says the operating system manages it.
cpu_features decode_cpu_features(const cpuid_query& cpuid, const xcr0_query& read_xcr0);

// The features of the processor this runs on.
cpu_features detect_cpu_features();

// The report, group by group, each entry as "    <label padded to 12>= Yes|No".
std::string cpu_report(const cpu_features& features);

// Writes the report of this processor to std::cout; the detection runs only once.
void print_cpu_report();

} // namespace orn
