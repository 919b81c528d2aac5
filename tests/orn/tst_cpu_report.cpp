#include "orn/cpu_report.h"

#include <QFile>
#include <QtTest>

#include <map>
#include <utility>

namespace {

// A made-up processor: the leaves it answers and its XCR0. Reading XCR0 when the
// processor doesn't say the system manages it would fault on real hardware, so the
// fake counts such reads.
struct fake_processor
{
    std::map<std::uint32_t, orn::cpuid_registers> leaves;
    std::uint64_t xcr0 = 0;
    int xcr0_reads = 0;

    orn::cpu_features decode()
    {
        return orn::decode_cpu_features(
            [this](std::uint32_t leaf, std::uint32_t) {
                const auto found = leaves.find(leaf);
                return found == leaves.end() ? orn::cpuid_registers{} : found->second;
            },
            [this] {
                ++xcr0_reads;
                return xcr0;
            });
    }
};

// Leaf 0 as a processor of this vendor with this highest leaf answers it.
orn::cpuid_registers vendor_leaf(const char (&vendor)[13], std::uint32_t highest)
{
    auto word = [&vendor](int at) {
        std::uint32_t value = 0;
        for (int i = 3; i >= 0; --i) {
            value = (value << 8) | static_cast<unsigned char>(vendor[at + i]);
        }
        return value;
    };
    return {highest, word(0), word(8), word(4)};
}

constexpr std::uint32_t osxsave_bit = 1U << 27;
constexpr std::uint32_t avx_bit = 1U << 28;
constexpr std::uint32_t avx512f_bit = 1U << 16;
constexpr std::uint32_t avx2_bit = 1U << 5;

QStringList report_lines(const orn::cpu_features& features)
{
    return QString::fromStdString(orn::cpu_report(features)).split(QLatin1Char('\n'));
}

} // namespace

class tst_cpu_report : public QObject
{
    Q_OBJECT

private slots:
    void vendor_data();
    void vendor();
    void operating_system_support_data();
    void operating_system_support();
    void leaves_beyond_the_highest_stay_no();
    void report_groups_end_with_an_empty_line();
    void this_processor_agrees_with_the_kernel();
};

void tst_cpu_report::vendor_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("amd_line");
    QTest::addColumn<QString>("intel_line");

    QTest::newRow("Intel") << "GenuineIntel"
                           << "    AMD         = No"
                           << "    Intel       = Yes";
    QTest::newRow("AMD") << "AuthenticAMD"
                         << "    AMD         = Yes"
                         << "    Intel       = No";
    QTest::newRow("neither") << "CentaurHauls"
                             << "    AMD         = No"
                             << "    Intel       = No";
}

void tst_cpu_report::vendor()
{
    QFETCH(QString, vendor);
    QFETCH(QString, amd_line);
    QFETCH(QString, intel_line);

    char text[13] = {};
    qstrncpy(text, vendor.toLatin1().constData(), sizeof text);
    fake_processor processor;
    processor.leaves[0] = vendor_leaf(text, 1);
    processor.leaves[1] = {0, 0, 0, 1U << 26}; // SSE2
    const QStringList lines = report_lines(processor.decode());

    QCOMPARE(lines.mid(0, 3), QStringList({"CPU Vendor:", amd_line, intel_line}));
    // The rest of the report goes on whatever the vendor.
    QVERIFY(lines.contains("    SSE2        = Yes"));
}

void tst_cpu_report::operating_system_support_data()
{
    QTest::addColumn<quint32>("leaf1_ecx");
    QTest::addColumn<quint32>("leaf7_ebx");
    QTest::addColumn<quint64>("xcr0");
    QTest::addColumn<int>("xcr0_reads");
    QTest::addColumn<QStringList>("expected");

    const quint32 avx_and_save = osxsave_bit | avx_bit;
    QTest::newRow("AVX, system saves no wide registers")
        << avx_and_save << 0U << quint64(0x1) << 1
        << QStringList{"    OS AVX      = No", "    AVX         = Yes",
                       "    Safe to use AVX:     No"};
    QTest::newRow("AVX without OSXSAVE: XCR0 not read")
        << avx_bit << 0U << quint64(0xE7) << 0
        << QStringList{"    OS AVX      = No", "    AVX         = Yes",
                       "    Safe to use AVX:     No"};
    QTest::newRow("AVX with system support")
        << avx_and_save << 0U << quint64(0x7) << 1
        << QStringList{"    OS AVX      = Yes", "    OS AVX512   = No",
                       "    Safe to use AVX:     Yes", "    Safe to use AVX512:  No"};
    QTest::newRow("AVX512 on a system that saves only AVX state")
        << avx_and_save << avx512f_bit << quint64(0x7) << 1
        << QStringList{"    AVX512-F    = Yes", "    Safe to use AVX512:  No"};
    QTest::newRow("AVX512 with system support")
        << avx_and_save << avx512f_bit << quint64(0xE7) << 1
        << QStringList{"    OS AVX512   = Yes", "    Safe to use AVX512:  Yes"};
    QTest::newRow("AVX512 state but no AVX512 hardware")
        << avx_and_save << 0U << quint64(0xE7) << 1
        << QStringList{"    OS AVX512   = Yes", "    Safe to use AVX512:  No"};
}

void tst_cpu_report::operating_system_support()
{
    QFETCH(quint32, leaf1_ecx);
    QFETCH(quint32, leaf7_ebx);
    QFETCH(quint64, xcr0);
    QFETCH(int, xcr0_reads);
    QFETCH(QStringList, expected);

    fake_processor processor;
    processor.leaves[0] = vendor_leaf("GenuineIntel", 7);
    processor.leaves[1] = {0, 0, leaf1_ecx, 0};
    processor.leaves[7] = {0, leaf7_ebx, 0, 0};
    processor.xcr0 = xcr0;
    const QStringList lines = report_lines(processor.decode());

    for (const QString& line : expected) {
        QVERIFY2(lines.contains(line), qPrintable(line));
    }
    QCOMPARE(processor.xcr0_reads, xcr0_reads);
}

void tst_cpu_report::leaves_beyond_the_highest_stay_no()
{
    fake_processor processor;
    processor.leaves[0] = vendor_leaf("AuthenticAMD", 1);
    processor.leaves[7] = {0, avx2_bit, 0, 0};
    processor.leaves[0x80000000U] = {0x80000000U, 0, 0, 0};
    processor.leaves[0x80000001U] = {0, 0, 0, 1U << 29};
    const QStringList lines = report_lines(processor.decode());

    QVERIFY(lines.contains("    AVX2        = No"));
    QVERIFY(lines.contains("    x64         = No"));
}

void tst_cpu_report::report_groups_end_with_an_empty_line()
{
    const QStringList headings = {
        "CPU Vendor:",   "OS Features:", "Hardware Features:", "SIMD: 128-bit", "SIMD: 256-bit",
        "SIMD: 512-bit", "Summary:"};
    const QStringList lines = report_lines(orn::cpu_features{});
    QStringList seen;
    for (int i = 0; i < lines.size(); ++i) {
        if (!lines[i].startsWith(QLatin1Char(' ')) && !lines[i].isEmpty()) {
            seen << lines[i];
            QVERIFY2(i == 0 || lines[i - 1].isEmpty(), qPrintable(lines[i]));
        }
    }
    QCOMPARE(seen, headings);
    // The text ends with the summary's empty line.
    QCOMPARE(lines.mid(lines.size() - 2), QStringList({"", ""}));
    QCOMPARE(lines.filter(QRegularExpression("^    \\S.{11}= (Yes|No)$")).size(), 37);
}

// The kernel reads the same cpuid bits: where it lists a flag, the report must say
// Yes, and No where it doesn't.
void tst_cpu_report::this_processor_agrees_with_the_kernel()
{
#if !defined(Q_OS_LINUX) || !(defined(Q_PROCESSOR_X86_64) || defined(Q_PROCESSOR_X86_32))
    QSKIP("The processor's flags are only listed by the kernel on x86 Linux");
#endif
    QFile info(QStringLiteral("/proc/cpuinfo"));
    QVERIFY(info.open(QIODevice::ReadOnly | QIODevice::Text));
    // Files of /proc report no size, so read to the end rather than asking atEnd.
    QStringList flags;
    const QStringList lines_of_info = QString::fromLatin1(info.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines_of_info) {
        if (line.startsWith(QLatin1String("flags"))) {
            flags = line.section(QLatin1Char(':'), 1).simplified().split(QLatin1Char(' '));
            break;
        }
    }
    QVERIFY(!flags.isEmpty());

    const std::pair<const char*, const char*> kernel_names[] = {
        {"MMX", "mmx"},
        {"x64", "lm"},
        {"RDRAND", "rdrand"},
        {"BMI1", "bmi1"},
        {"BMI2", "bmi2"},
        {"ADX", "adx"},
        {"SSE", "sse"},
        {"SSE2", "sse2"},
        {"SSE3", "pni"},
        {"SSSE3", "ssse3"},
        {"SSE4.1", "sse4_1"},
        {"SSE4.2", "sse4_2"},
        {"AES-NI", "aes"},
        {"SHA", "sha_ni"},
        {"AVX2", "avx2"},
        {"FMA3", "fma"},
        {"AVX512-F", "avx512f"},
        {"AVX512-CD", "avx512cd"},
        {"AVX512-BW", "avx512bw"},
        {"AVX512-DQ", "avx512dq"},
        {"AVX512-VL", "avx512vl"},
    };
    const QStringList lines = report_lines(orn::detect_cpu_features());
    for (const auto& [label, kernel_name] : kernel_names) {
        const QString expected = QStringLiteral("    %1= %2")
                                     .arg(QString::fromLatin1(label).leftJustified(12),
                                          flags.contains(kernel_name) ? "Yes" : "No");
        QVERIFY2(lines.contains(expected), qPrintable(expected));
    }
}

QTEST_GUILESS_MAIN(tst_cpu_report)
#include "tst_cpu_report.moc"
