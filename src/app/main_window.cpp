#include "app/main_window.h"

#include "app/dialog_settings.h"
#include "app/file_dialog_palette.h"
#include "app/setting_key.h"
#include "orn/application_information.h"
#include "orn/application_log.h"
#include "orn/button_dark.h"
#include "orn/current_language.h"
#include "orn/dialog_about.h"
#include "orn/help_documents.h"
#include "orn/lineedit.h"
#include "orn/palette.h"
#include "orn/pixel_argb.h"
#include "orn/show_help.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

namespace {

// Every icon of the window is centred and drawn in the toolkit's two greys.
constexpr int centred = -1;
constexpr orn::pixel_argb icon_highlight = orn::palette::icon_highlight;
constexpr orn::pixel_argb icon_normal = orn::palette::icon_normal;

const char* const window_style =
    "MainWindow{background-color:rgb(47,47,47);} *{color:rgb(198,213,210);}";

const char* const header_style = "#header{margin-top: %1px;background-image: "
                                 "url(:/images/head_small_dark_without_shadow.png);}";
constexpr int header_top_margin = 4;

const char* const line_edit_style =
    "orn--lineedit{    background:rgb(38,38,38);    color:rgb(198,213,210);    border: 1px "
    "solid rgb(%1);    selection-background-color:rgb(198,213,210);    selection-color: "
    "#000;}orn--lineedit:disabled{    border: 1px solid rgb(75,75,75);    background: "
    "rgb(47,47,47);    color: rgb(100,100,100);}QToolTip{border:1px solid "
    "rgb(99,99,99);background-image:none;background-color:rgb(47,47,47);}";

const char* const about_header_style = "#logobg{ background-image:url(:/images/Head.png);}";
constexpr int about_header_height = 97;
constexpr int about_logo_reduction = 10;

orn::button_dark* make_header_button(QWidget* parent, const QString& icon, const QString& tip)
{
    auto* button = new orn::button_dark(parent);
    button->set_image_base(QStringLiteral("header"));
    button->setFixedSize(27, 26);
    button->set_icon(icon, centred, centred, icon_highlight, icon_normal);
    button->setToolTip(tip);
    return button;
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : orn::main_window(parent), log_window(orn::application_log::instance())
{
    // Two keys for the log, both only while this window has the focus.
    for (const char* keys : {"Ctrl+Shift+L", "Ctrl+Shift+R"}) {
        auto* shortcut = new QShortcut(QKeySequence(QString::fromLatin1(keys)), this);
        shortcut->setContext(Qt::WindowShortcut);
        connect(shortcut, &QShortcut::activated, this, [this] {
            if (log_window != nullptr) {
                log_window->open_log_window();
            }
        });
    }

    // The fonts travel in the resources, so the window looks the same on any desktop.
    QFontDatabase::addApplicationFont(QStringLiteral(":/images/FreeSans.ttf"));
    QFontDatabase::addApplicationFont(QStringLiteral(":/images/FreeSansBold.ttf"));
    // Both files register the family "FreeSans", the second as its bold face. The
    // bold font is asked for as "FreeSansBold", which no font file names; without
    // this mapping the font machinery would fall back to an unrelated family.
    QFont::insertSubstitution(QStringLiteral("FreeSansBold"), QStringLiteral("FreeSans"));

    normal_font.setFamily(QStringLiteral("FreeSans"));
    normal_font.setPointSize(9);
    bold_font.setFamily(QStringLiteral("FreeSansBold"));
    bold_font.setWeight(75);
    bold_font.setPointSize(11);
    QApplication::setFont(normal_font);

    make_central_widget();

    // The build's identity, from any window of the program, for a support request.
    auto* information = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+G")), this);
    information->setContext(Qt::ApplicationShortcut);
    connect(information, &QShortcut::activated, this,
            [this] { orn::show_application_information(this); });

    // The layout decides the height once; the user may only widen the window.
    setFixedHeight(sizeHint().height());

    output_line->setText(output_dir_key.read(settings));
}

void MainWindow::make_central_widget()
{
    auto* central = new QWidget(this);
    auto* outer = new QGridLayout(central);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setVerticalSpacing(0);
    outer->setHorizontalSpacing(0);
    setStyleSheet(QString::fromLatin1(window_style));
    use_dark_file_dialogs(this);

    make_header(outer);

    const QString folder_tip =
        tr("Select the folder where the converted Lightroom presets will be saved.");

    auto* folder_label = new QLabel(tr("Output Folder"), central);
    folder_label->setFont(bold_font);
    folder_label->setToolTip(folder_tip);

    folder_button = new orn::button_dark(central);
    folder_button->setFixedSize(23, 22);
    folder_button->set_icon(QStringLiteral(":/images/icon_open.png"), centred, centred,
                            icon_highlight, icon_normal);
    folder_button->setToolTip(folder_tip);

    output_line = new orn::lineedit(central);
    output_line->setReadOnly(true);
    output_line->setFixedHeight(22);
    output_line->setMinimumWidth(290);
    output_line->setStyleSheet(
        QString::fromLatin1(line_edit_style).arg(QStringLiteral("99,99,99")));
    output_line->setToolTip(folder_tip);

    // The convert icon keeps its own greys and is lifted as a whole under the mouse.
    convert_button = new orn::button_dark(central);
    convert_button->setFixedSize(88, 54);
    convert_button->set_icon_shifted(QStringLiteral(":/images/icon_convert.png"), centred, centred,
                                     icon_highlight, icon_normal);
    convert_button->setToolTip(tr("Load Lightroom preset(s) and convert to Capture One."));

    auto* inner = new QGridLayout;
    inner->setContentsMargins(10, 20, 10, 20);
    inner->setVerticalSpacing(5);
    inner->setHorizontalSpacing(6);
    inner->addWidget(folder_label, 0, 1);
    inner->addWidget(folder_button, 1, 0);
    inner->addWidget(output_line, 1, 1);
    inner->addWidget(convert_button, 0, 2, 2, 2);
    outer->addLayout(inner, 1, 0);
    setCentralWidget(central);

    connect(
        folder_button, &QPushButton::clicked, this, [this] { choose_output_folder(); },
        Qt::DirectConnection);
    connect(convert_button, &QPushButton::clicked, this, &MainWindow::on_button_convert_clicked);
}

void MainWindow::make_header(QGridLayout* outer)
{
    auto* header = new QWidget(outer->parentWidget());
    header->setObjectName(QStringLiteral("header"));
    header->setStyleSheet(QString::fromLatin1(header_style).arg(header_top_margin));
    header->setFixedHeight(42);

    settings_button = make_header_button(header, QStringLiteral(":/images/icon_settings.png"),
                                         tr("Show settings dialog"));
    auto* logo = new QLabel(header);
    logo->setPixmap(QPixmap(QStringLiteral(":/images/logo_small.png")));
    logo->setFixedSize(354, 27);
    about_button = make_header_button(header, QStringLiteral(":/images/icon_about.png"),
                                      tr("Show information about this program"));
    help_button = make_header_button(header, QStringLiteral(":/images/icon_help.png"),
                                     tr("Display the help page for this program"));

    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(10, header_top_margin, 10, 0);
    row->setSpacing(8);
    row->addWidget(settings_button);
    row->addWidget(logo);
    row->addStretch(1);
    row->addWidget(about_button);
    row->addWidget(help_button);
    outer->addWidget(header, 0, 0);

    connect(
        settings_button, &QPushButton::clicked, this,
        [this] {
            // The catalogues were loaded at start; a new language needs a restart,
            // which the question offers.
            const QString previous = orn::current_language(QStringLiteral("lang"));
            dialog_settings dialog(&settings, this);
            dialog.exec();
            confirm_language_change(this, previous);
        },
        Qt::DirectConnection);
    connect(
        about_button, &QPushButton::clicked, this, [this] { show_about(); }, Qt::DirectConnection);
    connect(
        help_button, &QPushButton::clicked, this,
        [] {
            // The page links to the tutorial and the manual by relative names, so
            // they go beside the page's temporary copy first.
            orn::place_help_documents({QStringLiteral(":/help/tutorial_%1.html"),
                                       QStringLiteral(":/help/manual_%1.pdf")});
            orn::show_help(QStringLiteral(":/help/index_%1.html"));
        },
        Qt::DirectConnection);
}

void MainWindow::choose_output_folder()
{
    const QString start = output_dir_key.read(settings) + QLatin1Char('/');
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Select output folder"),
                                                             start, QFileDialog::ShowDirsOnly);
    if (chosen.isEmpty()) {
        return;
    }
    settings.setValue(output_dir_key.key, chosen);
    output_line->setText(chosen);
}

void MainWindow::show_about()
{
    orn::dialog_about about(this, QString::fromLatin1(about_header_style), about_header_height,
                            about_logo_reduction);
    about.set_3rdparty_libs(orn::dialog_about::default_3rdparty_libs(false, false));
    about.setWindowModality(Qt::ApplicationModal);
    // The style sheets decide the final size, so polish before measuring.
    about.ensurePolished();
    about.adjustSize();

    // Over the middle of the window when it fits on the screen; otherwise Qt's own
    // placement keeps the box on the screen.
    const QRect centred_rect =
        QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, about.size(), geometry());
    const QScreen* screen = this->screen();
    if (screen != nullptr && screen->availableGeometry().contains(centred_rect)) {
        about.setGeometry(centred_rect);
    }
    about.exec();
}
