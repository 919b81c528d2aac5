// The six boxes of a conversion run, shown one after the other over the real main
// window, so that their texts, bold names and buttons can be looked at. One of
// them, the conversion failure, can't be reached by a run of the program at all.
//
//   run_dialogs_manual              shows all six in the order of a run
//   run_dialogs_manual NAME...      only these: unsupported read white_balance
//                                   unsupported_parameters calibration conversion
#include "app/app_resources.h"
#include "app/main_window.h"
#include "app/run_dialogs.h"

#include "orn/application.h"
#include "orn/proxy_style.h"

#include <QStringList>

#include <functional>
#include <map>

int main(int argc, char** argv)
{
    orn::application<MainWindow> application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Lookwright"));
    init_lookwright_resources();
    // The program's style, under which the boxes' sheets are written.
    QApplication::setStyle(new orn::proxy_style);
    MainWindow window(nullptr);
    window.show();

    const run_dialogs dialogs(&window);
    const std::map<QString, std::function<void()>> boxes{
        {QStringLiteral("unsupported"),
         [&] { dialogs.unsupported_format(QStringLiteral("notes.txt")); }},
        {QStringLiteral("read"),
         [&] {
             dialogs.read_failed(QStringLiteral("Broken.lrtemplate"),
                                 QStringLiteral("Unexpected token type found. Expected "
                                                "token_type::comma, got token_type::name"));
         }},
        {QStringLiteral("white_balance"),
         [&] { dialogs.warn(preset_kind::white_balance, QStringLiteral("Warm Evening")); }},
        {QStringLiteral("unsupported_parameters"),
         [&] { dialogs.warn(preset_kind::unsupported_parameters, QStringLiteral("Film Look")); }},
        {QStringLiteral("calibration"),
         [&] { dialogs.warn(preset_kind::camera_calibration, QStringLiteral("Studio")); }},
        {QStringLiteral("conversion"),
         [&] { dialogs.conversion_failed(QStringLiteral("Warm Evening.xmp")); }},
    };
    QStringList chosen = QCoreApplication::arguments().mid(1);
    if (chosen.isEmpty()) {
        chosen = QStringList{"unsupported", "read",      "white_balance", "unsupported_parameters",
                             "calibration", "conversion"};
    }
    for (const QString& name : chosen) {
        const auto box = boxes.find(name);
        if (box != boxes.end()) {
            box->second();
        }
    }
    return 0;
}
