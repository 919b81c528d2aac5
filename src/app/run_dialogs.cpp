#include "app/run_dialogs.h"

#include "app/main_window.h"
#include "orn/message_box.h"

namespace {

// Where a user who meets a preset we can't handle sends it.
const QString support_address = QStringLiteral("support@corvane.example");

} // namespace

run_dialogs::run_dialogs(QWidget* parent)
    : parent_window(parent),
      bold_name(QStringLiteral("<font color=\"white\"><b>%1</b></font>")),
      convert_label(MainWindow::tr("Convert")),
      skip_label(MainWindow::tr("Skip")),
      convert_all_label(MainWindow::tr("Convert All")),
      skip_all_label(MainWindow::tr("Skip All"))
{}

void run_dialogs::unsupported_format(const QString& file_name) const
{
    orn::message_box::critical(
        parent_window, MainWindow::tr("Unsupported preset format"),
        MainWindow::tr("Your preset %1 is in a format Lookwright can't convert.")
            .arg(bold(file_name)));
}

void run_dialogs::read_failed(const QString& file_name, const QString& error) const
{
    // The address isn't part of the translated text, so that changing it never
    // orphans a translation. Both placeholders are filled in one step, so that a
    // "%2" in a file name stays as it is.
    const QString text =
        MainWindow::tr("Your preset %1 can't be processed by Lookwright.<br/><br/>Please contact "
                       "the Corvane support and send them a screenshot of this message and the "
                       "preset file stated above to ") +
        support_address + QStringLiteral("<br/><br/>Error: %2");
    orn::message_box::critical(parent_window, MainWindow::tr("Can't read preset"),
                               text.arg(bold(file_name), error));
}

QMessageBox::StandardButton run_dialogs::warn(preset_kind kind, const QString& preset_name) const
{
    QString title;
    QString text;
    switch (kind) {
    case preset_kind::white_balance:
        title = MainWindow::tr("White balance modified by preset");
        text = MainWindow::tr(
                   "Your preset %1 contains values for the white balance.<br/><br/>Equal white "
                   "balance values can lead to different results in Capture One.<br/>Thus "
                   "Lookwright translates the values instead of adapting them visually.<br/>Anyway "
                   "we recommend to keep the white balance settings for neutralizing the image "
                   "instead of using them for creating a look.<br/>For this reason they should "
                   "not be inside a preset.")
                   .arg(bold(preset_name));
        break;
    case preset_kind::unsupported_parameters: {
        title = MainWindow::tr("Unsupported parameters in preset");
        // One row per parameter a style can't hold; the colour table is the only one.
        const QString parameters =
            QStringLiteral("- ") + MainWindow::tr("LUT") + QStringLiteral("<br/>");
        // Filled in one step, so that a "%2" in the name can't take the list.
        text = MainWindow::tr("Your selected preset %1 contains the following parameters, which "
                              "can't be mapped in Capture One:<br/>%2<br/>These parameters will be "
                              "ignored.")
                   .arg(bold(preset_name), parameters);
        break;
    }
    case preset_kind::camera_calibration:
        title = MainWindow::tr("Camera calibration modified by preset");
        text = MainWindow::tr(
                   "The preset %1 contains values for the camera calibration.<br/>These settings "
                   "may influence the resulting look significantly but will not be converted to "
                   "Capture One.<br/>We recommend to reserve these parameters for the calibration "
                   "of your camera and not for creating creative looks.")
                   .arg(bold(preset_name));
        break;
    }
    return orn::message_box::question(parent_window, title, text, convert_label, skip_label,
                                      convert_all_label, skip_all_label, QMessageBox::Yes);
}

void run_dialogs::conversion_failed(const QString& file_name) const
{
    const QString text =
        MainWindow::tr("The preset %1 could not be converted to Capture One format.<br>Please "
                       "contact Corvane support and send them a screenshot of this message and the "
                       "preset file stated above to ") +
        support_address + QStringLiteral("<br/><br/>");
    orn::message_box::warning(parent_window, MainWindow::tr("Preset conversion failed"),
                              text.arg(bold(file_name)));
}
