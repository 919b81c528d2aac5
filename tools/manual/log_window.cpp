// The application log as a user sees it after a conversion run: the program's own
// lines in the main channel, a second channel beside it, and optionally a filter.
//
//   log_window                 shows the window, fed through the real console taps
//   log_window --filter TEXT   types TEXT into the filter line once the window is up
//   log_window --channel NAME  shows the tab of that channel
#include "orn/application_log.h"
#include "orn/message_handler.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

int main(int argc, char** argv)
{
    qSetMessagePattern(QString::fromLatin1(orn::message_pattern));
    orn::install_message_handler(true, false);
    QCoreApplication::setApplicationName(QStringLiteral("Lookwright"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0"));
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption filter_option(QStringLiteral("filter"),
                                           QStringLiteral("Type <text> into the filter line."),
                                           QStringLiteral("text"));
    const QCommandLineOption channel_option(QStringLiteral("channel"),
                                            QStringLiteral("Show the tab of <name>."),
                                            QStringLiteral("name"));
    parser.addOption(filter_option);
    parser.addOption(channel_option);
    parser.process(app);

    auto* log = new orn::application_log(&app);
    log->install();
    // Lines of the program's usual forms, through the message handler and the taps.
    for (int file = 1; file <= 24; ++file) {
        qInfo("Wrote 'C:/styles/Warm %d.costyle'", file);
        if (file % 7 == 0) {
            qWarning("Preset 'Cool %d' has no white balance, written without it", file);
        }
    }
    qCritical("Can't read 'C:/presets/Broken.xmp': not an XMP document");
    log->add_data(QStringLiteral("Converter"),
                  QStringLiteral("Converted 24 presets\nSkipped 1 preset\n"));
    log->open_log_window();

    // Typed once the first batch is in the window, as a user would.
    QTimer::singleShot(300, [&parser, &filter_option, &channel_option] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            auto* tabs = window->findChild<QTabWidget*>();
            if (tabs == nullptr) {
                continue;
            }
            for (int tab = 0; tab < tabs->count(); ++tab) {
                if (tabs->tabText(tab) == parser.value(channel_option)) {
                    tabs->setCurrentIndex(tab);
                }
            }
            QTest::keyClicks(window->findChild<QLineEdit*>(), parser.value(filter_option));
        }
    });
    return QApplication::exec();
}
