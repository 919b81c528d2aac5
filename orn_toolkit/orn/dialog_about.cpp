#include "orn/dialog_about.h"

#include "orn/clickable_label.h"
#include "orn/dialog_3rd_part_lib_info.h"
#include "orn/label.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

namespace orn {

namespace {

const QString dialog_sheet =
    QStringLiteral("#dialog_about{ background-color:rgb(47,47,47); }*{ color:rgb(198,213,210); }");
const QString logo_sheet = QStringLiteral("background-image:none; background-color:none;");
const QString tooltip_sheet =
    QStringLiteral("QToolTip{border:1px solid rgb(99,99,99);"
                   "background-image:none;background-color:rgb(47,47,47);}");
const QString link_sheet =
    QStringLiteral("QLabel { text-decoration: %1; }QToolTip { border:1px solid rgb(99,99,99);"
                   "background-image:none;background-color:rgb(47,47,47); }");
const QString logo_path = QStringLiteral(":/images/logo.png");

// The dialog's sheet colours every widget's text, which would override a palette
// colour; the link's colour therefore travels in its rich text.
const QString link_colour = QStringLiteral("#728a84");

// The logo keeps its aspect ratio at the given height. Without an image it has no
// width, and the header stays empty.
label* make_logo(QWidget* parent, int height)
{
    const QImage image(logo_path);
    auto* logo = new label(parent);
    const int width = image.isNull() ? 0 : qRound(image.width() * double(height) / image.height());
    logo->setFixedSize(width, height);
    logo->setStyleSheet(QStringLiteral("orn--label{%1}%2").arg(logo_sheet, tooltip_sheet));
    logo->set_paint_callback([logo, image](QPainter& painter) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(logo->rect(), image);
    });
    return logo;
}

} // namespace

dialog_about::dialog_about(QWidget* parent, const QString& header_style, int header_height,
                           int logo_reduction)
    : QDialog(parent)
{
    QFont normal_font(QStringLiteral("FreeSans"), 9);
    QFont bold_font(QStringLiteral("FreeSansBold"), 11);
    bold_font.setWeight(75);

    auto* header = new QWidget(this);
    label* logo = make_logo(header, header_height - logo_reduction);
    auto* version_label = new QLabel(tr("Version:"), this);
    auto* version = new QLabel(
        QCoreApplication::applicationVersion() + tr(" - %1 Bit").arg(QSysInfo::WordSize), this);
    auto* libraries = new clickable_label(
        QStringLiteral("<span style=\"color:%1;\">%2</span>")
            .arg(link_colour, tr("Click here for 3rd party library information")),
        this);

    setObjectName(QStringLiteral("dialog_about"));
    setStyleSheet(dialog_sheet);
    setWindowTitle(tr("About"));
    setWindowFlags(windowFlags() & ~(Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint |
                                     Qt::WindowContextHelpButtonHint));
    setFont(normal_font);
    header->setObjectName(QStringLiteral("logobg"));
    header->setStyleSheet(header_style);
    header->setFixedHeight(header_height);
    version_label->setFont(bold_font);
    libraries->setCursor(Qt::PointingHandCursor);
    libraries->setStyleSheet(link_sheet.arg(QStringLiteral("none")));
    libraries->set_underline_on_hover(true);

    auto* header_row = new QHBoxLayout(header);
    header_row->setContentsMargins(0, 0, 0, 0);
    header_row->setSpacing(0);
    header_row->addStretch();
    header_row->addWidget(logo);
    header_row->addStretch();

    auto* facts = new QGridLayout;
    facts->setContentsMargins(20, 10, 20, 0);
    facts->addWidget(version_label, 0, 0);
    facts->addWidget(version, 0, 1);
    facts->setColumnStretch(1, 1);

    auto* link_row = new QHBoxLayout;
    link_row->setContentsMargins(20, 0, 20, 10);
    link_row->addWidget(libraries);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(header);
    column->addLayout(facts);
    column->addSpacing(20);
    column->addLayout(link_row);

    connect(libraries, &clickable_label::clicked, this, [this] {
        if (show_libraries) {
            show_libraries(this);
        }
    });

    setFixedWidth(sizeHint().width());
}

void dialog_about::set_3rdparty_libs(std::function<void(QWidget*)> libraries)
{
    show_libraries = std::move(libraries);
}

std::function<void(QWidget*)> dialog_about::default_3rdparty_libs(bool with_first, bool with_second)
{
    Q_UNUSED(with_second)
    return [with_first](QWidget* parent) {
        dialog_3rd_part_lib_info libraries(parent);
        libraries.add_library(
            QStringLiteral("Little CMS"),
            tr("This software uses Little CMS, an open source color management library<br>"
               "under the MIT license. Details and source code: %1")
                .arg(dialog_3rd_part_lib_info::library_link(
                    QStringLiteral("https://www.littlecms.com/"))));
        if (with_first) {
            libraries.add_library(
                QStringLiteral("FreeImage"),
                tr("This software uses FreeImage, an open source image library, under the<br>"
                   "FreeImage Public License. Details and source code: %1")
                    .arg(dialog_3rd_part_lib_info::library_link(
                        QStringLiteral("https://freeimage.sourceforge.io/"))));
        }
        libraries.exec();
    };
}

} // namespace orn
