#include "orn/dialog_3rd_part_lib_info.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QPalette>
#include <QTextEdit>
#include <QVBoxLayout>

namespace orn {

namespace {

const QString dialog_sheet =
    QStringLiteral("QDialog{background-color:rgb(47,47,47); color:rgb(198,213,210);}");
const QString intro_sheet = QStringLiteral("font-size:16px;");
const QString name_sheet = QStringLiteral("font-size:14px; font-weight:bold;");
const QString note_sheet = QStringLiteral("font-size:12px;");
const QColor text_colour(198, 213, 210);

// The version this program was built and tested against, whatever runs it.
const QString qt_version = QStringLiteral("5.9.6");

// The dialog's sheet colours the dialog but not its labels, which have sheets of
// their own; the colour comes to them through their palettes, so that the text
// is readable whatever parent the dialog opens from.
void set_text_colour(QLabel* label)
{
    QPalette text_palette = label->palette();
    text_palette.setColor(QPalette::WindowText, text_colour);
    label->setPalette(text_palette);
}

} // namespace

dialog_3rd_part_lib_info::dialog_3rd_part_lib_info(QWidget* parent)
    : QDialog(parent), rows(new QVBoxLayout(this))
{
    auto* intro = new QLabel(tr("%1 uses the following open source and/or 3rd party libraries:")
                                 .arg(QCoreApplication::applicationName()),
                             this);

    setWindowTitle(tr("About 3rd party libraries"));
    setStyleSheet(dialog_sheet);
    intro->setStyleSheet(intro_sheet);
    set_text_colour(intro);

    rows->setContentsMargins(20, 10, 20, 10);
    rows->setSpacing(10);
    rows->addWidget(intro);

    add_library(
        QStringLiteral("Qt ") + qt_version,
        tr("This software links to Qt dynamically under the terms of the GNU Lesser<br>"
           "General Public License (LGPL). Qt's source code and the license text are<br>"
           "available at %1; the source code of this version at<br>%2.")
            .arg(library_link(QStringLiteral("https://www.qt.io/")),
                 library_link(QStringLiteral("https://download.qt.io/archive/qt/5.9/5.9.6/"))));
}

QString dialog_3rd_part_lib_info::library_link(const QString& address)
{
    // Rich text links take the palette's link colour, a bright blue that is hard
    // to read on the dark ground; they get the toolkit's link colour instead.
    return QStringLiteral("<a href=\"%1\" style=\"color:#728a84;\">%1</a>").arg(address);
}

void dialog_3rd_part_lib_info::add_library(const QString& name, const QString& note,
                                           const QString& text_resource)
{
    auto* block = new QVBoxLayout;
    auto* name_label = new QLabel(name, this);
    auto* note_label = new QLabel(note, this);

    name_label->setStyleSheet(name_sheet);
    note_label->setStyleSheet(note_sheet);
    set_text_colour(name_label);
    set_text_colour(note_label);
    note_label->setTextFormat(Qt::RichText);
    note_label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    note_label->setOpenExternalLinks(true);

    block->setContentsMargins(0, 0, 0, 0);
    block->setSpacing(5);
    block->addWidget(name_label);
    block->addWidget(note_label);
    if (!text_resource.isEmpty()) {
        auto* text_box = new QTextEdit(this);
        QFile file(text_resource);
        if (file.open(QIODevice::ReadOnly)) {
            text_box->setPlainText(QString::fromUtf8(file.readAll()));
        }
        text_box->setReadOnly(true);
        block->addWidget(text_box);
    }
    rows->addLayout(block);
}

int dialog_3rd_part_lib_info::exec()
{
    setFixedSize(sizeHint());
    return QDialog::exec();
}

} // namespace orn
