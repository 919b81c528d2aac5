// The program's one operation: a click on the convert button asks for presets,
// walks them in the order the dialog returned them, warns about what a style
// can't hold, converts and writes. All of it is one synchronous call; only its
// dialogs keep the window alive meanwhile. A failed file never ends the run, and
// the run ends without a summary: what happened lies in the log.
#include "app/main_window.h"

#include "app/check_kind.h"
#include "app/run_dialogs.h"
#include "app/setting_key.h"
#include "app/stylepack_save.h"
#include "convert/lut_set.h"
#include "preset/preset_file.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMap>
#include <QtDebug>

namespace {

// What one run keeps from file to file. Nothing of it outlives the click.
struct conversion_run
{
    const QSettings& settings;
    const run_dialogs& dialogs;
    // Read once: the modal dialogs keep the settings from changing under a run.
    const QString format_setting;
    check_kinds preset_checks;
    // Target name to document, in the archive's entry order.
    QMap<QString, QString> stylepack_documents;
};

// Writes one style where the user looks for it. An existing file is replaced
// without a question; a target that can't be opened is passed over in silence.
void save_style(const QString& target_path, const QString& document)
{
    QFile file(target_path);
    if (!file.open(QIODevice::WriteOnly)) {
        return;
    }
    const QByteArray bytes = document.toUtf8();
    const qint64 written = file.write(bytes);
    if (written == bytes.size()) {
        qInfo("Wrote '%s'", qUtf8Printable(target_path));
    } else {
        qWarning("Error writing '%s': Only wrote %d of %d bytes", qUtf8Printable(target_path),
                 static_cast<int>(written), bytes.size());
    }
    file.close();
}

void convert_file(conversion_run& run, const QString& path)
{
    const QFileInfo file(path);
    preset_settings preset;
    const preset_read_result read = read_preset_file(path, preset);
    switch (read.status) {
    case preset_read_status::unsupported_format:
        // The open dialog's filter doesn't stop a typed name.
        run.dialogs.unsupported_format(file.fileName());
        return;
    case preset_read_status::failed:
        run.dialogs.read_failed(file.fileName(), read.error);
        return;
    case preset_read_status::read:
        break;
    }
    qDebug() << preset.settings;

    // Only the last suffix goes: "a.b.xmp" becomes "a.b.costyle". The folder is
    // read for each file and neither checked nor created.
    const QString target_name = file.completeBaseName() + QStringLiteral(".costyle");
    const QString target_path = output_dir_key.read(run.settings) + QLatin1Char('/') + target_name;

    const lut_set luts;
    preset_findings found{};
    luts.inspect_preset(preset, found[kind_index(preset_kind::white_balance)],
                        found[kind_index(preset_kind::unsupported_parameters)],
                        found[kind_index(preset_kind::camera_calibration)]);
    const bool admitted = admit_preset(run.preset_checks, found, [&](preset_kind kind) {
        return run.dialogs.warn(kind, preset.name);
    });
    if (!admitted) {
        return;
    }

    QString document;
    if (!luts.convert_preset(preset, &document)) {
        run.dialogs.conversion_failed(file.fileName());
        return;
    }

    if (run.format_setting == QLatin1String("separate")) {
        save_style(target_path, document);
    } else {
        // Of two presets with the same base name only the later one stays.
        run.stylepack_documents.insert(target_name, document);
    }
}

} // namespace

void MainWindow::on_button_convert_clicked()
{
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Load Lightroom Template"), input_dir_key.read(settings),
        tr("Lightroom Templates(*.lrtemplate *.xmp)"));
    if (files.isEmpty()) {
        return;
    }
    // Stored before anything is read, so that the next run starts where the user
    // looked, even if every file of this one fails.
    settings.setValue(input_dir_key.key, QFileInfo(files.front()).absolutePath());

    const run_dialogs dialogs(this);
    conversion_run run{
        settings,
        dialogs,
        settings.value(QStringLiteral("format"), QStringLiteral("separate")).toString(),
        {},
        {}};
    for (const QString& path : files) {
        convert_file(run, path);
    }

    if (!run.stylepack_documents.isEmpty()) {
        save_stylepack(this, output_dir_key.read(settings), run.format_setting,
                       run.stylepack_documents);
    }
}
