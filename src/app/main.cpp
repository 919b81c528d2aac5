// Lookwright: the window program. Everything is set up in a fixed order before the
// event loop runs; closing the window ends the program.

#include "app/app_resources.h"
#include "app/main_window.h"
#include "orn/application.h"
#include "orn/application_log.h"
#include "orn/current_language.h"
#include "orn/message_handler.h"
#include "orn/proxy_style.h"

#include <QLibraryInfo>
#include <QTranslator>

namespace {

// A catalogue that is missing or fails to load leaves the texts in English.
void install_translator(QCoreApplication& app, const QString& name, const QString& folder = {})
{
    auto* translator = new QTranslator(&app);
    static_cast<void>(translator->load(name, folder));
    QCoreApplication::installTranslator(translator);
}

} // namespace

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
    install_translator(app, QStringLiteral("qt_") + lang,
                       QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install_translator(app, QStringLiteral(":/translations/") + lang);
    install_translator(app, QStringLiteral(":/translations/toolkit_") + lang);

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
