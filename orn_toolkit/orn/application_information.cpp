#include "orn/application_information.h"

#include "orn/component_versions.h"
#include "orn/message_box.h"
// Not used here, but it changes with every new revision and so recompiles this
// file, which keeps the build stamp below from going stale.
#include "orn/source_revision.h"

#include <QCoreApplication>
#include <QSysInfo>

namespace orn {

namespace {

// The compiler that built this file, as a support request needs to know it.
QString compiler_line()
{
#if defined(__clang__)
    return QStringLiteral("clang Version: " __clang_version__ "\n");
#elif defined(__GNUC__)
    return QStringLiteral("gcc Version: " __VERSION__ "\n");
#elif defined(_MSC_VER)
    return QStringLiteral("msvc Version: %1\n").arg(_MSC_FULL_VER);
#else
    return QStringLiteral("Compiler Version: unknown\n");
#endif
}

} // namespace

QString application_information(const QMap<QString, QString>& extra)
{
    QString text = QStringLiteral("OS: %1\n").arg(QSysInfo::prettyProductName());
    text += QStringLiteral("ABI: %1\n").arg(QSysInfo::buildAbi());
    text += compiler_line();
    text += QStringLiteral("\nApplication: %1\nVersion: %2\n")
                .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
    // The stamp of this file's compilation, which is part of every build of the toolkit.
    text += QStringLiteral("Build: " __DATE__ " " __TIME__ "\n");
    text += QLatin1Char('\n') + QString::fromStdString(component_report());
    if (!extra.isEmpty()) {
        text += QLatin1Char('\n');
        for (auto entry = extra.cbegin(); entry != extra.cend(); ++entry) {
            text += QStringLiteral("%1:\t\t%2\n").arg(entry.key(), entry.value());
        }
    }
    return text;
}

void show_application_information(QWidget* parent, const QMap<QString, QString>& extra)
{
    message_box::information(parent, QStringLiteral("Application Information"),
                             application_information(extra));
}

} // namespace orn
