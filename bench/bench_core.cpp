// Speed of the core's steps, each on its own: reading, tables, conversion, writing.

#include "convert/lost_settings.h"
#include "convert/lut_3d.h"
#include "convert/lut_set.h"
#include "output/style_document.h"
#include "output/stylepack.h"
#include "preset/template_reader.h"
#include "preset/xmp_reader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

QString bench_data(const char* name)
{
    return QStringLiteral(LOOKWRIGHT_BENCH_DATA "/") + QLatin1String(name);
}

preset_settings read_template(const QString& path)
{
    preset_settings preset;
    load_template(preset, path);
    return preset;
}

// Must run first: it is the only construction in the process that parses tables.
void lut_set_first_construction(benchmark::State& state)
{
    for (auto _ : state) {
        const lut_set luts;
        benchmark::DoNotOptimize(&luts);
    }
}
BENCHMARK(lut_set_first_construction)->Iterations(1)->Unit(benchmark::kMillisecond);

void lut_set_later_construction(benchmark::State& state)
{
    const lut_set first;
    for (auto _ : state) {
        const lut_set luts;
        benchmark::DoNotOptimize(&luts);
    }
}
BENCHMARK(lut_set_later_construction);

void read_braced_template(benchmark::State& state)
{
    const QString path = bench_data("typical.lrtemplate");
    for (auto _ : state) {
        preset_settings preset;
        load_template(preset, path);
        benchmark::DoNotOptimize(preset.settings.size());
    }
}
BENCHMARK(read_braced_template)->Unit(benchmark::kMicrosecond);

void read_xmp_preset(benchmark::State& state)
{
    const QString path = bench_data("typical.xmp");
    for (auto _ : state) {
        preset_settings preset;
        load_xmp(preset, path);
        benchmark::DoNotOptimize(preset.settings.size());
    }
}
BENCHMARK(read_xmp_preset)->Unit(benchmark::kMicrosecond);

void load_3dl_table(benchmark::State& state)
{
    const lut_set make_resources_available;
    for (auto _ : state) {
        lut_3d table;
        load_3dl(table, QStringLiteral(":/data/ProPhotoRGB_to_sRGB.3dl"));
        benchmark::DoNotOptimize(table.entries.data());
    }
}
BENCHMARK(load_3dl_table)->Unit(benchmark::kMillisecond);

void convert_curve_heavy(benchmark::State& state, const char* colour_space)
{
    const lut_set luts;
    const preset_settings preset = read_template(bench_data("curves.lrtemplate"));
    const QString space = QLatin1String(colour_space);
    for (auto _ : state) {
        QString out;
        luts.convert_preset(preset, &out, space);
        benchmark::DoNotOptimize(out.size());
    }
}
BENCHMARK_CAPTURE(convert_curve_heavy, raw, "raw")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(convert_curve_heavy, srgb, "srgb")->Unit(benchmark::kMicrosecond);

void write_document(benchmark::State& state)
{
    const lut_set luts;
    QString document;
    luts.convert_preset(read_template(bench_data("typical.lrtemplate")), &document,
                        QStringLiteral("srgb"));
    style_values values;
    // Re-read the values the conversion wrote, to time the writer alone.
    for (const QString& line : document.split(QLatin1Char('\n'))) {
        const int k = line.indexOf(QLatin1String("K=\""));
        const int v = line.indexOf(QLatin1String("\" V=\""));
        if (k >= 0 && v > k) {
            values.insert(line.mid(k + 3, v - k - 3), line.mid(v + 5, line.size() - v - 8));
        }
    }
    for (auto _ : state) {
        QString out;
        write_style_document(values, &out);
        benchmark::DoNotOptimize(out.size());
    }
}
BENCHMARK(write_document)->Unit(benchmark::kMicrosecond);

// The road of one preset once the tables are loaded: read, inspect, convert, write;
// when `telling_losses`, with the keys read gathered and what is lost sorted out,
// as --report and -v do.
void preset_road(benchmark::State& state, bool telling_losses)
{
    const lut_set first;
    const QString path = bench_data("typical.lrtemplate");
    for (auto _ : state) {
        preset_settings preset;
        load_template(preset, path);
        const lut_set luts;
        bool white_balance = false;
        bool rgb_table = false;
        bool calibration = false;
        luts.inspect_preset(preset, white_balance, rgb_table, calibration);
        QString out;
        QSet<QString> read_keys;
        luts.convert_preset(preset, &out, QStringLiteral("srgb"),
                            telling_losses ? &read_keys : nullptr);
        if (telling_losses) {
            benchmark::DoNotOptimize(lost_settings(preset, read_keys).size());
        }
        benchmark::DoNotOptimize(out.toUtf8().size());
    }
}

void whole_preset(benchmark::State& state)
{
    preset_road(state, false);
}
BENCHMARK(whole_preset)->Unit(benchmark::kMicrosecond);

void whole_preset_telling_losses(benchmark::State& state)
{
    preset_road(state, true);
}
BENCHMARK(whole_preset_telling_losses)->Unit(benchmark::kMicrosecond);

void stylepack_of_100(benchmark::State& state)
{
    const lut_set luts;
    QString document;
    luts.convert_preset(read_template(bench_data("typical.lrtemplate")), &document,
                        QStringLiteral("raw"));
    QMap<QString, QString> documents;
    for (int i = 0; i < 100; ++i) {
        documents.insert(QStringLiteral("Style %1.costyle").arg(i), document);
    }
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bench.costylepack"));
    for (auto _ : state) {
        benchmark::DoNotOptimize(write_stylepack(path, QStringLiteral("stylepack"), documents));
    }
}
BENCHMARK(stylepack_of_100)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    // The core's log would drown the figures.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
