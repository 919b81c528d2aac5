// Times the convert button's run over 1,000 presets: the real slot with its real
// dialogs, answered as they open. Every preset holds white balance, a colour table
// and calibration values, so the first one raises all three warnings and each is
// answered "Convert All" once; the other 999 go through silently. The clock runs
// from the call of the slot to its return, the open dialog included.
//
// The presets are chosen as a user would choose a thousand files: the dialog
// opens in their folder, and once it has listed them all, all are selected.
//
//   bench_conversion_run [runs]     (default 5; prints every run, then the median)

#include "app/app_resources.h"
#include "app/main_window.h"
#include "support/modal_answerer.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QListView>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

constexpr int preset_count = 1000;

// Half braced templates, half XMP presets, each with its own values so that no two
// conversions are alike.
QByteArray preset_text(int i)
{
    const int exposure = i % 100;
    const int shadows = i % 40 - 20;
    if (i % 2 == 0) {
        return QStringLiteral("s = {\n\ttitle = \"Preset %1\",\n\tvalue = {\n\t\tsettings = {\n"
                              "\t\t\tExposure2012 = 0.%2,\n\t\t\tShadows2012 = %3,\n"
                              "\t\t\tTemperature = %4,\n\t\t\tTint = %5,\n"
                              "\t\t\tRGBTable = \"4C5554\",\n\t\t\tRedHue = %6,\n"
                              "\t\t\tSplitToningShadowHue = %7,\n"
                              "\t\t\tSplitToningShadowSaturation = 20,\n"
                              "\t\t\tToneCurvePV2012 = { 0, %8, 128, %9, 255, 255, },\n"
                              "\t\t},\n\t},\n}\n")
            .arg(i)
            .arg(exposure, 2, 10, QLatin1Char('0'))
            .arg(shadows)
            .arg(4000 + i % 3000)
            .arg(shadows / 2)
            .arg(1 + i % 30)
            .arg(i % 360)
            .arg(exposure / 4)
            .arg(120 + shadows)
            .toUtf8();
    }
    return QStringLiteral(
               "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n <rdf:RDF "
               "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n  <rdf:Description "
               "rdf:about=\"\" xmlns:crs=\"http://ns.adobe.com/camera-raw-settings/1.0/\"\n"
               "   crs:Exposure2012=\"+0.%1\" crs:Contrast2012=\"%2\" crs:Clarity2012=\"%3\" "
               "crs:Temperature=\"%4\" crs:RGBTable=\"4C5554\" crs:BlueSaturation=\"%5\">\n"
               "   <crs:Name><rdf:Alt><rdf:li xml:lang=\"x-default\">Preset "
               "%6</rdf:li></rdf:Alt></crs:Name>\n"
               "   <crs:ToneCurvePV2012Red><rdf:Seq><rdf:li>0, 0</rdf:li><rdf:li>128, "
               "%7</rdf:li><rdf:li>255, 255</rdf:li></rdf:Seq></crs:ToneCurvePV2012Red>\n"
               "  </rdf:Description>\n </rdf:RDF>\n</x:xmpmeta>\n")
        .arg(exposure, 2, 10, QLatin1Char('0'))
        .arg(shadows)
        .arg(shadows / 2)
        .arg(4000 + i % 3000)
        .arg(-1 - i % 30)
        .arg(i)
        .arg(128 + shadows)
        .toUtf8();
}

// Selects every file of the folder the dialog shows, once it has listed them, and
// accepts. Returns at once for anything but a file dialog.
void choose_all_presets(QWidget* dialog)
{
    auto* files = qobject_cast<QFileDialog*>(dialog);
    auto* list = dialog->findChild<QListView*>(QStringLiteral("listView"));
    auto* model = dialog->findChild<QFileSystemModel*>();
    if (files == nullptr || list == nullptr || model == nullptr) {
        return;
    }
    // The folder is listed on a thread of the model's own.
    while (model->rowCount(list->rootIndex()) < preset_count) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    list->selectAll();
    // accept() is protected in QFileDialog; as a slot it can still be invoked.
    QMetaObject::invokeMethod(files, "accept", Qt::DirectConnection);
}

// The run logs two lines per preset; the figure is the run's, not the console's.
void drop_message(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

int main(int argc, char** argv)
{
    // Headless, and with a settings store of its own, so that the user's real
    // settings stay untouched.
    QTemporaryDir home;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_CONFIG_HOME", QDir(home.path()).filePath(QStringLiteral("config")).toUtf8());
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Lookwright"));
    init_lookwright_resources();
    const int runs = argc > 1 ? std::max(1, QByteArray(argv[1]).toInt()) : 5;

    const QDir dir(home.path());
    dir.mkpath(QStringLiteral("in"));
    for (int i = 0; i < preset_count; ++i) {
        const QString path = dir.filePath(
            QStringLiteral("in/preset_%1.%2").arg(i).arg(i % 2 == 0 ? "lrtemplate" : "xmp"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(preset_text(i)) < 0) {
            std::fprintf(stderr, "can't write %s\n", qPrintable(path));
            return 1;
        }
    }

    QSettings().setValue(QStringLiteral("input_dir"), dir.filePath(QStringLiteral("in")));
    qInstallMessageHandler(drop_message);
    std::vector<double> milliseconds;
    std::vector<double> after_dialog;
    std::vector<double> processor;
    for (int run = 0; run < runs; ++run) {
        const QString out = dir.filePath(QStringLiteral("out%1").arg(run));
        dir.mkpath(out);
        QSettings().setValue(QStringLiteral("output_dir"), out);
        MainWindow window(nullptr);

        modal_answerer answers;
        QElapsedTimer timer;
        qint64 chosen_at = 0;
        answers.expect([&](QWidget* dialog) {
            choose_all_presets(dialog);
            chosen_at = timer.nsecsElapsed();
        });
        for (int kind = 0; kind < 3; ++kind) {
            answers.expect(modal_answerer::click(QStringLiteral("Convert All")));
        }
        const std::clock_t processor_start = std::clock();
        timer.start();
        window.on_button_convert_clicked();
        processor.push_back(1000.0 * double(std::clock() - processor_start) / CLOCKS_PER_SEC);
        milliseconds.push_back(timer.nsecsElapsed() / 1e6);
        after_dialog.push_back((timer.nsecsElapsed() - chosen_at) / 1e6);

        const int written = QDir(out).entryList(QDir::Files).size();
        if (!answers.done() || written != preset_count) {
            std::fprintf(stderr, "run %d: %d of %d styles written\n", run + 1, written,
                         preset_count);
            return 1;
        }
        std::printf("run %d: %.0f ms, of which %.0f ms after the open dialog; processor time "
                    "%.0f ms\n",
                    run + 1, milliseconds.back(), after_dialog.back(), processor.back());
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    std::sort(after_dialog.begin(), after_dialog.end());
    std::sort(processor.begin(), processor.end());
    const std::size_t middle = milliseconds.size() / 2;
    std::printf("1,000 presets through the convert button, median of %d runs: %.0f ms "
                "(%.0f ms after the open dialog), processor time %.0f ms\n",
                runs, milliseconds[middle], after_dialog[middle], processor[middle]);
    return 0;
}
