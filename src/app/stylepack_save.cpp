#include "app/stylepack_save.h"

#include "app/main_window.h"
#include "output/stylepack.h"

#include <QFileDialog>

void save_stylepack(QWidget* parent, const QString& output_dir, const QString& format,
                    const QMap<QString, QString>& stylepack_documents)
{
    // The trailing "/" makes the dialog open inside the folder with an empty name.
    const QString path = QFileDialog::getSaveFileName(
        parent, MainWindow::tr("Name Capture One Stylepack"), output_dir + QLatin1Char('/'),
        MainWindow::tr("Capture One Stylepack(*.costylepack)"));
    if (path.isEmpty()) {
        return;
    }
    // The window tells nobody whether the archive came into being; the log does.
    write_stylepack(path, format, stylepack_documents);
}
