#include "converter/converter_options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace {

const QStringList known_formats{QStringLiteral("separate"), QStringLiteral("stylepack"),
                                QStringLiteral("stylepack_category")};

} // namespace

parse_result parse_converter_options(const QStringList& arguments,
                                     const QString& saved_colour_space, converter_options& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Converts Lightroom presets (.lrtemplate, .xmp) into Capture One styles (.costyle)."));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsCompactedShortOptions);
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")},
                                    QStringLiteral("Folder for the .costyle files (default: the "
                                                   "current folder)."),
                                    QStringLiteral("DIR"));
    const QCommandLineOption colour_space(
        {QStringLiteral("c"), QStringLiteral("colorspace")},
        QStringLiteral("raw | adobe | srgb | prophoto | widegamut (default: the saved setting, "
                       "else raw)."),
        QStringLiteral("NAME"));
    const QCommandLineOption format({QStringLiteral("f"), QStringLiteral("format")},
                                    QStringLiteral("separate | stylepack | stylepack_category "
                                                   "(default: separate)."),
                                    QStringLiteral("NAME"));
    const QCommandLineOption pack({QStringLiteral("p"), QStringLiteral("pack")},
                                  QStringLiteral("The archive to write in the two stylepack "
                                                 "formats."),
                                  QStringLiteral("FILE"));
    const QCommandLineOption report(
        QStringLiteral("report"),
        QStringLiteral("Write a JSON report to FILE: per preset its style or why none, its "
                       "warnings, and the settings the style doesn't carry."),
        QStringLiteral("FILE"));
    const QCommandLineOption skip_white_balance(
        QStringLiteral("skip-white-balance"),
        QStringLiteral("Skip presets that modify the white balance."));
    const QCommandLineOption skip_unsupported(
        QStringLiteral("skip-unsupported"),
        QStringLiteral("Skip presets with parameters that can't be mapped."));
    const QCommandLineOption skip_calibration(
        QStringLiteral("skip-calibration"),
        QStringLiteral("Skip presets that modify the camera calibration."));
    const QCommandLineOption strict(
        QStringLiteral("strict"),
        QStringLiteral("Read templates as the window does, with no second try as Lua."));
    const QCommandLineOption quiet({QStringLiteral("q"), QStringLiteral("quiet")},
                                   QStringLiteral("Errors only."));
    const QCommandLineOption verbose({QStringLiteral("v"), QStringLiteral("verbose")},
                                     QStringLiteral("The whole log, and per preset the settings "
                                                    "its style doesn't carry."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    const QCommandLineOption version(QStringLiteral("version"),
                                     QStringLiteral("Show the version."));
    parser.addOptions({output, colour_space, format, pack, report, skip_white_balance,
                       skip_unsupported, skip_calibration, strict, quiet, verbose, help, version});
    parser.addPositionalArgument(QStringLiteral("PRESET|PACK|FOLDER"),
                                 QStringLiteral("Presets, preset packs (.zip), or folders "
                                                "searched for both."),
                                 QStringLiteral("PRESET|PACK|FOLDER..."));

    if (!parser.parse(arguments)) {
        return {parse_outcome::usage_error, parser.errorText()};
    }
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return {parse_outcome::exit_ok, QString()};
    }
    if (parser.isSet(version)) {
        std::printf("lookwright-convert %s\n", qPrintable(QCoreApplication::applicationVersion()));
        return {parse_outcome::exit_ok, QString()};
    }

    options.inputs = parser.positionalArguments();
    if (options.inputs.isEmpty()) {
        return {parse_outcome::usage_error, QStringLiteral("No preset or folder given.")};
    }
    options.output_dir = parser.isSet(output) ? parser.value(output) : QStringLiteral(".");
    if (options.output_dir.isEmpty()) {
        return {parse_outcome::usage_error, QStringLiteral("The output folder is empty.")};
    }
    options.colour_space =
        parser.isSet(colour_space) ? parser.value(colour_space) : saved_colour_space;
    if (parser.isSet(format)) {
        options.format = parser.value(format);
    }
    if (!known_formats.contains(options.format)) {
        return {parse_outcome::usage_error,
                QStringLiteral("Unknown format '%1': use separate, stylepack or "
                               "stylepack_category.")
                    .arg(options.format)};
    }
    options.pack_path = parser.value(pack);
    const bool packing = options.format != QLatin1String("separate");
    if (packing && options.pack_path.isEmpty()) {
        return {parse_outcome::usage_error,
                QStringLiteral("The format '%1' needs --pack FILE.").arg(options.format)};
    }
    if (!packing && parser.isSet(pack)) {
        return {parse_outcome::usage_error,
                QStringLiteral("--pack goes with --format stylepack or stylepack_category.")};
    }
    options.report_path = parser.value(report);
    if (parser.isSet(report) && options.report_path.isEmpty()) {
        return {parse_outcome::usage_error, QStringLiteral("The report file is empty.")};
    }
    if (parser.isSet(quiet) && parser.isSet(verbose)) {
        return {parse_outcome::usage_error,
                QStringLiteral("--quiet and --verbose exclude each other.")};
    }
    options.level = parser.isSet(quiet)     ? converter_options::verbosity::quiet
                    : parser.isSet(verbose) ? converter_options::verbosity::verbose
                                            : converter_options::verbosity::normal;
    options.skip_white_balance = parser.isSet(skip_white_balance);
    options.skip_unsupported = parser.isSet(skip_unsupported);
    options.skip_calibration = parser.isSet(skip_calibration);
    options.strict = parser.isSet(strict);
    return {};
}
