#pragma once

#include <QString>
#include <QStringList>

// What the command line asked for.
struct converter_options
{
    enum class verbosity
    {
        quiet,   // errors only
        normal,  // errors, per-preset warnings, the log's warnings, the summary
        verbose, // the whole log
    };

    QStringList inputs;
    QString output_dir;
    QString colour_space;
    QString format = QStringLiteral("separate");
    QString pack_path;
    // Where --report writes what each preset loses; empty for no report.
    QString report_path;
    bool skip_white_balance = false;
    bool skip_unsupported = false;
    bool skip_calibration = false;
    // Templates are read by the window's reader alone, with no second try as Lua.
    bool strict = false;
    verbosity level = verbosity::normal;
};

enum class parse_outcome
{
    run,        // options are complete; convert
    exit_ok,    // --help or --version was printed
    usage_error // `error` says what is wrong
};

struct parse_result
{
    parse_outcome outcome = parse_outcome::run;
    QString error;
};

// Parses the arguments (the first is the program). `saved_colour_space` is the
// persisted setting, used when no --colorspace is given.
parse_result parse_converter_options(const QStringList& arguments,
                                     const QString& saved_colour_space, converter_options& options);
