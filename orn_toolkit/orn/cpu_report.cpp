#include "orn/cpu_report.h"

#include <iomanip>
#include <iostream>
#include <sstream>

#if defined(__x86_64__) || defined(__i386__) || defined(_M_X64) || defined(_M_IX86)
#define ORN_X86 1
#if defined(_MSC_VER)
#include <immintrin.h>
#include <intrin.h>
#else
#include <cpuid.h>
#endif
#endif

namespace orn {

namespace {

#if defined(ORN_X86)

cpuid_registers read_cpuid(std::uint32_t leaf, std::uint32_t subleaf)
{
    cpuid_registers registers;
#if defined(_MSC_VER)
    int values[4] = {};
    __cpuidex(values, static_cast<int>(leaf), static_cast<int>(subleaf));
    registers.eax = static_cast<std::uint32_t>(values[0]);
    registers.ebx = static_cast<std::uint32_t>(values[1]);
    registers.ecx = static_cast<std::uint32_t>(values[2]);
    registers.edx = static_cast<std::uint32_t>(values[3]);
#else
    __cpuid_count(leaf, subleaf, registers.eax, registers.ebx, registers.ecx, registers.edx);
#endif
    return registers;
}

std::uint64_t read_xcr0()
{
#if defined(_MSC_VER)
    return _xgetbv(0);
#else
    // Inline rather than _xgetbv, which GCC offers only to code built for XSAVE.
    std::uint32_t low = 0;
    std::uint32_t high = 0;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return (std::uint64_t{high} << 32) | low;
#endif
}

#endif

bool bit(std::uint32_t value, int index)
{
    return ((value >> index) & 1U) != 0;
}

void put_entry(std::ostringstream& out, const char* label, bool value)
{
    out << "    " << std::left << std::setw(12) << label << "= " << (value ? "Yes" : "No") << '\n';
}

} // namespace

cpu_features decode_cpu_features(const cpuid_query& cpuid, const xcr0_query& read_xcr0)
{
    cpu_features f;
    f.os_64bit = sizeof(void*) == 8;

    const cpuid_registers leaf0 = cpuid(0, 0);
    const std::uint32_t highest = leaf0.eax;
    // The vendor text is spread over EBX, EDX and ECX, in that order.
    char vendor[13] = {};
    for (int i = 0; i < 4; ++i) {
        vendor[i] = static_cast<char>(leaf0.ebx >> (8 * i));
        vendor[4 + i] = static_cast<char>(leaf0.edx >> (8 * i));
        vendor[8 + i] = static_cast<char>(leaf0.ecx >> (8 * i));
    }
    f.intel = std::string(vendor) == "GenuineIntel";
    f.amd = std::string(vendor) == "AuthenticAMD";

    if (highest >= 1) {
        const cpuid_registers leaf1 = cpuid(1, 0);
        f.mmx = bit(leaf1.edx, 23);
        f.sse = bit(leaf1.edx, 25);
        f.sse2 = bit(leaf1.edx, 26);
        f.sse3 = bit(leaf1.ecx, 0);
        f.ssse3 = bit(leaf1.ecx, 9);
        f.fma3 = bit(leaf1.ecx, 12);
        f.sse41 = bit(leaf1.ecx, 19);
        f.sse42 = bit(leaf1.ecx, 20);
        f.aes = bit(leaf1.ecx, 25);
        f.avx = bit(leaf1.ecx, 28);
        f.rdrand = bit(leaf1.ecx, 30);
        // Without OSXSAVE the xgetbv instruction itself would fault.
        const bool osxsave = bit(leaf1.ecx, 27);
        if (osxsave && f.avx) {
            // Bits 1 and 2: the system saves the SSE and AVX registers on a task
            // switch; bits 5 to 7 add the AVX512 mask and upper registers.
            const std::uint64_t xcr0 = read_xcr0();
            f.os_avx = (xcr0 & 0x6) == 0x6;
            f.os_avx512 = f.os_avx && (xcr0 & 0xE6) == 0xE6;
        }
    }
    if (highest >= 7) {
        const cpuid_registers leaf7 = cpuid(7, 0);
        f.bmi1 = bit(leaf7.ebx, 3);
        f.avx2 = bit(leaf7.ebx, 5);
        f.bmi2 = bit(leaf7.ebx, 8);
        f.mpx = bit(leaf7.ebx, 14);
        f.avx512_f = bit(leaf7.ebx, 16);
        f.avx512_dq = bit(leaf7.ebx, 17);
        f.adx = bit(leaf7.ebx, 19);
        f.avx512_ifma = bit(leaf7.ebx, 21);
        f.avx512_pf = bit(leaf7.ebx, 26);
        f.avx512_er = bit(leaf7.ebx, 27);
        f.avx512_cd = bit(leaf7.ebx, 28);
        f.sha = bit(leaf7.ebx, 29);
        f.avx512_bw = bit(leaf7.ebx, 30);
        f.avx512_vl = bit(leaf7.ebx, 31);
        f.prefetchwt1 = bit(leaf7.ecx, 0);
        f.avx512_vbmi = bit(leaf7.ecx, 1);
    }
    const std::uint32_t highest_extended = cpuid(0x80000000U, 0).eax;
    if (highest_extended >= 0x80000001U) {
        const cpuid_registers extended = cpuid(0x80000001U, 0);
        f.x64 = bit(extended.edx, 29);
        f.abm = bit(extended.ecx, 5);
        f.sse4a = bit(extended.ecx, 6);
        f.xop = bit(extended.ecx, 11);
        f.fma4 = bit(extended.ecx, 16);
    }
    return f;
}

cpu_features detect_cpu_features()
{
#if defined(ORN_X86)
    return decode_cpu_features(read_cpuid, read_xcr0);
#else
    cpu_features features;
    features.os_64bit = sizeof(void*) == 8;
    return features;
#endif
}

std::string cpu_report(const cpu_features& f)
{
    std::ostringstream out;
    out << "CPU Vendor:\n";
    put_entry(out, "AMD", f.amd);
    put_entry(out, "Intel", f.intel);
    out << "\nOS Features:\n";
    put_entry(out, "64-bit", f.os_64bit);
    put_entry(out, "OS AVX", f.os_avx);
    put_entry(out, "OS AVX512", f.os_avx512);
    out << "\nHardware Features:\n";
    put_entry(out, "MMX", f.mmx);
    put_entry(out, "x64", f.x64);
    put_entry(out, "ABM", f.abm);
    put_entry(out, "RDRAND", f.rdrand);
    put_entry(out, "BMI1", f.bmi1);
    put_entry(out, "BMI2", f.bmi2);
    put_entry(out, "ADX", f.adx);
    put_entry(out, "MPX", f.mpx);
    put_entry(out, "PREFETCHWT1", f.prefetchwt1);
    out << "\nSIMD: 128-bit\n";
    put_entry(out, "SSE", f.sse);
    put_entry(out, "SSE2", f.sse2);
    put_entry(out, "SSE3", f.sse3);
    put_entry(out, "SSSE3", f.ssse3);
    put_entry(out, "SSE4a", f.sse4a);
    put_entry(out, "SSE4.1", f.sse41);
    put_entry(out, "SSE4.2", f.sse42);
    put_entry(out, "AES-NI", f.aes);
    put_entry(out, "SHA", f.sha);
    out << "\nSIMD: 256-bit\n";
    put_entry(out, "AVX", f.avx);
    put_entry(out, "XOP", f.xop);
    put_entry(out, "FMA3", f.fma3);
    put_entry(out, "FMA4", f.fma4);
    put_entry(out, "AVX2", f.avx2);
    out << "\nSIMD: 512-bit\n";
    put_entry(out, "AVX512-F", f.avx512_f);
    put_entry(out, "AVX512-CD", f.avx512_cd);
    put_entry(out, "AVX512-PF", f.avx512_pf);
    put_entry(out, "AVX512-ER", f.avx512_er);
    put_entry(out, "AVX512-VL", f.avx512_vl);
    put_entry(out, "AVX512-BW", f.avx512_bw);
    put_entry(out, "AVX512-DQ", f.avx512_dq);
    put_entry(out, "AVX512-IFMA", f.avx512_ifma);
    put_entry(out, "AVX512-VBMI", f.avx512_vbmi);
    out << "\nSummary:\n";
    out << "    Safe to use AVX:     " << (f.os_avx && f.avx ? "Yes" : "No") << '\n';
    out << "    Safe to use AVX512:  " << (f.os_avx512 && f.avx512_f ? "Yes" : "No") << '\n';
    out << '\n';
    return out.str();
}

void print_cpu_report()
{
    static const cpu_features features = detect_cpu_features();
    std::cout << cpu_report(features);
}

} // namespace orn
