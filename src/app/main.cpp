// Lookwright: the window program. Everything is set up in a fixed order before the
// event loop runs; closing the window ends the program.

#include "app/app_resources.h"
#include "app/catalogues.h"
#include "app/main_window.h"
#include "orn/application.h"
#include "orn/application_log.h"
#include "orn/current_language.h"
#include "orn/message_handler.h"
#include "orn/proxy_style.h"

int main(int argc, char** argv)
{
    // Registering resources needs no application object, and the catalogues below
    // are read from them.
    init_lookwright_resources();

    qSetMessagePattern(QString::fromLatin1(orn::message_pattern));
    // Before the application exists, so that Qt's own first messages already take
    // the program's form.
    orn::install_message_handler(true, false);

    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("corvane.example"));
    QCoreApplication::setApplicationName(QStringLiteral("Lookwright"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LOOKWRIGHT_VERSION));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);

    orn::application<MainWindow> app(argc, argv);

    auto* style = new orn::proxy_style;
    style->set_tooltip_delay(2000);
    // The application takes the style and deletes it at the end; the analyzer
    // can't see that and reports a leak at the next statement.
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks)
    QApplication::setStyle(style);

    // Fixed for the whole run: a later change of the setting takes effect at the
    // next start.
    const QString lang = orn::current_language(QStringLiteral("lang"));
    // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
    // English has no catalogues of its own: what is missing stays English.
    static_cast<void>(install_catalogues(lang));

    // From here on every console line also reaches the log window.
    if (orn::application_log::instance() == nullptr) {
        new orn::application_log(&app);
    }
    orn::application_log::instance()->install();

    app.window = new MainWindow(nullptr);
    app.window->setAttribute(Qt::WA_DeleteOnClose);
    app.window->show();

    return QApplication::exec();
}
