#include "orn/cpu_report.h"

#include <QFile>
#include <QtTest>

#include <map>

namespace {

constexpr std::uint32_t osxsave_and_avx = (1U << 27) | (1U << 28);
constexpr std::uint32_t avx512f = 1U << 16;

// The report of a made-up processor: vendor text, highest leaf, the registers of
// leaves 1 and 7 that carry the flags under test, and XCR0.
QStringList report_of(const QByteArray& vendor, std::uint32_t highest, std::uint32_t leaf1_ecx,
                      std::uint32_t leaf7_ebx, std::uint64_t xcr0)
{
    auto word = [&vendor](int at) {
        std::uint32_t value = 0;
        for (int i = 3; i >= 0; --i) {
            value = (value << 8) | static_cast<unsigned char>(vendor.at(at + i));
        }
        return value;
    };
    // The vendor text is spread over EBX, EDX and ECX, in that order.
    const std::map<std::uint32_t, orn::cpuid_registers> leaves = {
        {0, {highest, word(0), word(8), word(4)}},
        {1, {0, 0, leaf1_ecx, 1U << 26}}, // SSE2 in EDX
        {7, {0, leaf7_ebx, 0, 0}},
    };
    const orn::cpu_features features = orn::decode_cpu_features(
        [&leaves](std::uint32_t leaf, std::uint32_t) {
            const auto found = leaves.find(leaf);
            return found == leaves.end() ? orn::cpuid_registers{} : found->second;
        },
        [xcr0] { return xcr0; });
    return QString::fromStdString(orn::cpu_report(features)).split(QLatin1Char('\n'));
}

} // namespace

class tst_cpu_report : public QObject
{
    Q_OBJECT

private slots:
    void made_up_processors_data();
    void made_up_processors();
    void this_processor_agrees_with_the_kernel();
};

void tst_cpu_report::made_up_processors_data()
{
    QTest::addColumn<QByteArray>("vendor");
    QTest::addColumn<quint32>("highest");
    QTest::addColumn<quint32>("leaf1_ecx");
    QTest::addColumn<quint32>("leaf7_ebx");
    QTest::addColumn<quint64>("xcr0");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("vendor neither Intel nor AMD")
        << QByteArray("CentaurHauls") << 1U << 0U << 0U << quint64(0)
        << QStringList{"CPU Vendor:",  "    AMD         = No",  "    Intel       = No", "",
                       "OS Features:", "    64-bit      = Yes", "    SSE2        = Yes"};
    QTest::newRow("AVX, system saves no wide registers")
        << QByteArray("GenuineIntel") << 7U << osxsave_and_avx << 0U << quint64(0x1)
        << QStringList{"    Intel       = Yes", "    OS AVX      = No", "    AVX         = Yes",
                       "    Safe to use AVX:     No"};
    // Without OSXSAVE the register may not be read, whatever it would say.
    QTest::newRow("AVX without OSXSAVE")
        << QByteArray("AuthenticAMD") << 7U << (1U << 28) << 0U << quint64(0xE7)
        << QStringList{"    AMD         = Yes", "    OS AVX      = No", "    AVX         = Yes",
                       "    Safe to use AVX:     No"};
    QTest::newRow("AVX512 with system support")
        << QByteArray("GenuineIntel") << 7U << osxsave_and_avx << avx512f << quint64(0xE7)
        << QStringList{"    OS AVX512   = Yes",
                       "    AVX512-F    = Yes",
                       "    Safe to use AVX:     Yes",
                       "    Safe to use AVX512:  Yes",
                       "",
                       ""};
}

void tst_cpu_report::made_up_processors()
{
    QFETCH(QByteArray, vendor);
    QFETCH(quint32, highest);
    QFETCH(quint32, leaf1_ecx);
    QFETCH(quint32, leaf7_ebx);
    QFETCH(quint64, xcr0);
    QFETCH(QStringList, expected);

    const QStringList report = report_of(vendor, highest, leaf1_ecx, leaf7_ebx, xcr0);
    // In this order, though not necessarily next to each other.
    int at = 0;
    for (const QString& line : expected) {
        const int found = report.indexOf(line, at);
        QVERIFY2(found >= 0, qPrintable(QStringLiteral("'%1' after line %2").arg(line).arg(at)));
        at = found + 1;
    }
}

// The kernel reads the same cpuid bits: where it lists a flag the report must say
// Yes, and No where it doesn't.
void tst_cpu_report::this_processor_agrees_with_the_kernel()
{
#if !defined(Q_OS_LINUX) || !(defined(Q_PROCESSOR_X86_64) || defined(Q_PROCESSOR_X86_32))
    QSKIP("Only the kernel of x86 Linux lists the processor's flags");
#endif
    QFile info(QStringLiteral("/proc/cpuinfo"));
    QVERIFY(info.open(QIODevice::ReadOnly));
    const QStringList flags = QString::fromLatin1(info.readAll())
                                  .section(QLatin1String("\nflags"), 1, 1)
                                  .section(QLatin1Char('\n'), 0, 0)
                                  .section(QLatin1Char(':'), 1)
                                  .simplified()
                                  .split(QLatin1Char(' '));
    QVERIFY(flags.size() > 1);

    const QStringList report = QString::fromStdString(orn::cpu_report(orn::detect_cpu_features()))
                                   .split(QLatin1Char('\n'));
    const char* const names[][2] = {
        {"x64", "lm"},        {"BMI2", "bmi2"},  {"SSE3", "pni"},
        {"SSE4.1", "sse4_1"}, {"AES-NI", "aes"}, {"SHA", "sha_ni"},
        {"FMA3", "fma"},      {"AVX2", "avx2"},  {"AVX512-F", "avx512f"}};
    for (const auto& [label, kernel_name] : names) {
        const QString line =
            QStringLiteral("    %1= %2")
                .arg(QString::fromLatin1(label).leftJustified(12),
                     QLatin1String(flags.contains(QLatin1String(kernel_name)) ? "Yes" : "No"));
        QVERIFY2(report.contains(line), qPrintable(line));
    }
}

QTEST_GUILESS_MAIN(tst_cpu_report)
#include "tst_cpu_report.moc"
