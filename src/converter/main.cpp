// lookwright-convert: the batch converter on the command line. It runs the same
// core as the window, takes the window's answers from its options, and never
// writes the user's settings.

#include "converter/batch_conversion.h"
#include "converter/console_report.h"
#include "converter/converter_log.h"
#include "converter/converter_options.h"
#include "converter/loss_report.h"
#include "converter/preset_files.h"
#include "orn/message_handler.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

namespace {

// Batches of more than this many files show a progress bar on a terminal.
constexpr int progress_threshold = 3;

QString saved_colour_space()
{
    return QSettings().value(QStringLiteral("colorspace"), QStringLiteral("raw")).toString();
}

// A folder that doesn't exist is made when its parent exists, as mkdir would.
bool prepare_output_folder(const QString& folder, console_report& report)
{
    const QFileInfo info(folder);
    if (info.exists() && !info.isDir()) {
        report.error(folder, QStringLiteral("the output folder is a file"));
        return false;
    }
    if (!info.exists() && !QDir().mkdir(folder)) {
        report.error(folder, QStringLiteral("the output folder doesn't exist and can't be made"));
        return false;
    }
    return true;
}

// `what` names the file in messages: "archive", "report".
bool check_output_file(const QString& path, const QString& what, console_report& report)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        report.error(path, QStringLiteral("the %1 path is a folder").arg(what));
        return false;
    }
    if (!info.absoluteDir().exists()) {
        report.error(path, QStringLiteral("the %1's folder doesn't exist").arg(what));
        return false;
    }
    // The file is written only after every preset is converted; find out now
    // whether the folder takes a file at all.
    QTemporaryFile probe(info.absoluteDir().filePath(QStringLiteral(".lookwright-XXXXXX")));
    if (!probe.open()) {
        report.error(
            path,
            QStringLiteral("can't write in the %1's folder: %2").arg(what, probe.errorString()));
        return false;
    }
    return true;
}

bool write_report(const QString& path, const QByteArray& json, console_report& report)
{
    QSaveFile out(path);
    if (!out.open(QIODevice::WriteOnly) || out.write(json) != json.size() || !out.commit()) {
        report.error(path, QStringLiteral("can't write the report: ") + out.errorString());
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    qSetMessagePattern(QString::fromLatin1(orn::message_pattern));
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Lookwright"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LOOKWRIGHT_VERSION));

    converter_options options;
    const parse_result parsed =
        parse_converter_options(QCoreApplication::arguments(), saved_colour_space(), options);
    if (parsed.outcome == parse_outcome::exit_ok) {
        return 0;
    }
    if (parsed.outcome == parse_outcome::usage_error) {
        std::fprintf(stderr, "lookwright-convert: %s\nTry 'lookwright-convert --help'.\n",
                     qUtf8Printable(parsed.error));
        return 2;
    }

    const preset_inputs inputs = collect_preset_files(options.inputs);
    const bool quiet = options.level == converter_options::verbosity::quiet;
    console_report report(
        !quiet && isatty(STDERR_FILENO) != 0 && inputs.files.size() > progress_threshold, quiet);
    install_converter_log(&report, options.level);

    if (!is_known_colour_space(options.colour_space)) {
        report.warning(options.colour_space,
                       QStringLiteral("unknown colour space; converting as the window does with "
                                      "such a setting (identity table, no tint offset)"));
    }
    const bool packing = options.format != QLatin1String("separate");
    const bool reporting = !options.report_path.isEmpty();
    const bool output_ready =
        (packing ? check_output_file(options.pack_path, QStringLiteral("archive"), report)
                 : prepare_output_folder(options.output_dir, report)) &&
        (!reporting || check_output_file(options.report_path, QStringLiteral("report"), report));

    loss_report losses;
    if (reporting) {
        report.record_in(&losses);
    }
    batch_conversion batch(options, report);
    batch.record_in(reporting ? &losses : nullptr);
    batch_summary summary;
    for (const QString& missing : inputs.missing) {
        batch.fail(missing, QStringLiteral("no such file or folder"), summary);
    }
    if (output_ready) {
        const batch_summary converted = batch.run(inputs.files);
        summary.converted = converted.converted;
        summary.skipped = converted.skipped;
        summary.failed += converted.failed;
        summary.read_as_lua = converted.read_as_lua;
    } else {
        summary.failed += inputs.files.size();
    }
    install_converter_log(nullptr, options.level);
    report.record_in(nullptr);
    // Where the output can't be written, no report is either: the error said why.
    const bool report_written = !reporting || !output_ready ||
                                write_report(options.report_path, losses.json(summary), report);

    if (!quiet) {
        std::printf("%d converted, %d skipped, %d failed", summary.converted, summary.skipped,
                    summary.failed);
        if (summary.read_as_lua > 0) {
            std::printf(" (%d %s read as Lua)", summary.read_as_lua,
                        summary.read_as_lua == 1 ? "template" : "templates");
        }
        std::printf("\n");
    }
    return summary.failed > 0 || !report_written ? 1 : 0;
}
