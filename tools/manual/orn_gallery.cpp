// The toolkit's widgets in each of their states, one screen per family, so that a
// change of look can be seen at a glance.
//
//   orn_gallery              shows the screens as tabs of one window
//   orn_gallery --shots DIR  writes DIR/<screen>.png for every screen and exits
//
// To add a screen, write a function that builds it and list it in screens().
#include "orn/button.h"
#include "orn/button_combobox.h"
#include "orn/button_custom.h"
#include "orn/button_dark.h"
#include "orn/button_dark_flat.h"
#include "orn/button_dark_round.h"
#include "orn/button_html.h"
#include "orn/checkbox.h"
#include "orn/checkbox_flat.h"
#include "orn/clickable_label.h"
#include "orn/combobox.h"
#include "orn/combobox_lineedit.h"
#include "orn/dialog_about.h"
#include "orn/lineedit.h"
#include "orn/message_box.h"
#include "orn/palette.h"
#include "orn/proxy_style.h"
#include "orn/radio.h"
#include "orn/style_scrollbars.h"
#include "orn/textedit.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCommandLineParser>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QSlider>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

#include <deque>
#include <functional>
#include <list>
#include <vector>

namespace {

struct screen
{
    QString name;
    QString title;
    std::function<QWidget*()> make;
};

enum class state
{
    normal,
    hover,
    pressed,
    checked,
    disabled
};
const std::vector<std::pair<state, QString>> all_states = {
    {state::normal, QStringLiteral("normal")},     {state::hover, QStringLiteral("hover")},
    {state::pressed, QStringLiteral("pressed")},   {state::checked, QStringLiteral("checked")},
    {state::disabled, QStringLiteral("disabled")},
};

QColor to_color(orn::pixel_argb pixel)
{
    return QColor(pixel.r, pixel.g, pixel.b, pixel.a);
}

// A page on the window's ground; the window's sheet gives everything without a
// colour of its own the palette's text colour, as the program's windows do.
QWidget* make_page(QGridLayout*& grid)
{
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("page"));
    grid = new QGridLayout(page);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(10);
    return page;
}

void add_state_header(QGridLayout* grid)
{
    int column = 1;
    for (const auto& entry : all_states) {
        grid->addWidget(new QLabel(entry.second), 0, column++, Qt::AlignCenter);
    }
}

// Puts a widget into a state as far as it can be shown without a user. Hover
// marks the button as under the mouse, which the icon painters read; the style
// sheets' hover rules follow only a real pointer, so hover text and grounds show
// when the mouse is moved over a button.
void apply_state(QAbstractButton* button, state which)
{
    switch (which) {
    case state::normal:
        break;
    case state::hover:
        button->setAttribute(Qt::WA_UnderMouse);
        break;
    case state::pressed:
        button->setDown(true);
        break;
    case state::checked:
        button->setCheckable(true);
        button->setChecked(true);
        break;
    case state::disabled:
        button->setEnabled(false);
        break;
    }
}

// Sample icons in the two forms button_dark takes: a grey mask, and a shaded
// picture whose lightest part is the normal icon colour.
struct sample_icons
{
    QTemporaryDir dir;
    QString mask;
    QString shaded;
    QString check_mark;

    sample_icons()
    {
        mask = dir.filePath(QStringLiteral("mask.png"));
        shaded = dir.filePath(QStringLiteral("shaded.png"));
        check_mark = dir.filePath(QStringLiteral("check.png"));
        draw(mask, QColor(128, 128, 128), QColor(128, 128, 128));
        draw(shaded, to_color(orn::palette::icon_normal), QColor(84, 89, 87));
        QImage check(20, 20, QImage::Format_ARGB32);
        check.fill(Qt::transparent);
        QPainter painter(&check);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(128, 128, 128), 2.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawPolyline(QPolygonF({{4, 10}, {8, 14}, {16, 5}}));
        painter.end();
        check.save(check_mark);
    }

    // A folder with a dot: the outline in light, the inside in dark.
    static void draw(const QString& path, const QColor& light, const QColor& dark)
    {
        QImage image(20, 18, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(light, 1.6));
        painter.setBrush(dark);
        painter.drawPolygon(
            QPolygonF({{1.5, 3}, {7, 3}, {9, 5.5}, {18.5, 5.5}, {18.5, 16}, {1.5, 16}}));
        painter.setPen(Qt::NoPen);
        painter.setBrush(light);
        painter.drawEllipse(QPointF(10, 11), 2.5, 2.5);
        painter.end();
        image.save(path);
    }
};

sample_icons& icons()
{
    static sample_icons instance;
    return instance;
}

QWidget* dark_buttons_screen()
{
    QGridLayout* grid = nullptr;
    QWidget* page = make_page(grid);
    add_state_header(grid);

    const std::vector<std::pair<QString, std::function<orn::button_dark*()>>> rows = {
        {QStringLiteral("text, tool tip"),
         [] {
             auto* b = new orn::button_dark(QStringLiteral("Convert"));
             b->setToolTip(QStringLiteral("Tool tips come after two seconds"));
             return b;
         }},
        {QStringLiteral("icon"),
         [] {
             auto* b = new orn::button_dark;
             b->setFixedSize(27, 26);
             b->set_icon(icons().mask);
             return b;
         }},
        {QStringLiteral("icon shifted"),
         [] {
             auto* b = new orn::button_dark;
             b->setFixedSize(88, 54);
             b->set_icon_shifted(icons().shaded);
             return b;
         }},
        {QStringLiteral("checked icon"),
         [] {
             auto* b = new orn::button_dark;
             b->setFixedSize(40, 30);
             b->set_icon(icons().mask);
             b->set_checked_icon(icons().check_mark);
             return b;
         }},
        {QStringLiteral("frame if checked"),
         [] {
             auto* b = new orn::button_dark;
             b->setFixedSize(40, 30);
             b->set_style_flags(true, true, false, true);
             b->set_icon(icons().mask);
             return b;
         }},
        {QStringLiteral("header base"),
         [] {
             auto* b = new orn::button_dark;
             b->set_image_base(QStringLiteral("header"));
             b->setFixedSize(27, 26);
             b->set_icon(icons().mask);
             return b;
         }},
        {QStringLiteral("blank base, left"),
         [] {
             auto* b = new orn::button_dark(QStringLiteral("Left aligned"));
             b->set_image_base(QStringLiteral("blank"));
             b->set_text_alignment(QStringLiteral("left"));
             b->setMinimumWidth(140);
             return b;
         }},
        {QStringLiteral("text colour, padding"),
         [] {
             auto* b = new orn::button_dark(QStringLiteral("Coloured"));
             b->set_text_color(orn::pixel_argb(230, 160, 60));
             b->set_padding(20);
             return b;
         }},
    };
    int row = 1;
    for (const auto& [title, make] : rows) {
        grid->addWidget(new QLabel(title), row, 0);
        int column = 1;
        for (const auto& entry : all_states) {
            orn::button_dark* b = make();
            apply_state(b, entry.first);
            grid->addWidget(b, row, column++, Qt::AlignCenter);
        }
        ++row;
    }
    grid->setRowStretch(row, 1);
    return page;
}

QWidget* flat_buttons_screen()
{
    QGridLayout* grid = nullptr;
    QWidget* page = make_page(grid);
    add_state_header(grid);

    const std::vector<std::pair<QString, std::function<orn::button_dark*()>>> rows = {
        {QStringLiteral("flat"), [] { return new orn::button_dark_flat(QStringLiteral("Flat")); }},
        {QStringLiteral("round, tool tip"),
         [] {
             auto* b = new orn::button_dark_round(QStringLiteral("Round"));
             b->setToolTip(QStringLiteral("A flat button's tool tip"));
             return b;
         }},
        {QStringLiteral("round, icon"),
         [] {
             auto* b = new orn::button_dark_round;
             b->setFixedSize(34, 26);
             b->set_icon(icons().mask);
             return b;
         }},
    };
    int row = 1;
    for (const auto& [title, make] : rows) {
        grid->addWidget(new QLabel(title), row, 0);
        int column = 1;
        for (const auto& entry : all_states) {
            orn::button_dark* b = make();
            b->setMinimumWidth(70);
            apply_state(b, entry.first);
            grid->addWidget(b, row, column++, Qt::AlignCenter);
        }
        ++row;
    }

    // A row of flat choices in an exclusive group, as tabs would be.
    grid->addWidget(new QLabel(QStringLiteral("group")), row, 0);
    auto* group = new QButtonGroup(page);
    int column = 1;
    for (const QString& text :
         {QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")}) {
        auto* b = new orn::button_dark_flat(text);
        b->setCheckable(true);
        b->set_uncheck_in_group(true);
        group->addButton(b);
        grid->addWidget(b, row, column++);
    }
    group->buttons().constFirst()->setChecked(true);
    grid->setRowStretch(row + 1, 1);
    return page;
}

QWidget* plain_buttons_screen()
{
    QGridLayout* grid = nullptr;
    QWidget* page = make_page(grid);
    grid->addWidget(new QLabel(QStringLiteral("normal")), 0, 1, Qt::AlignCenter);
    grid->addWidget(new QLabel(QStringLiteral("flash")), 0, 2, Qt::AlignCenter);

    // The flash lasts 200 ms after a release; the shot is taken within it.
    const auto flash = [](orn::button* b) {
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(2, 2), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QApplication::sendEvent(b, &release);
    };
    const auto make_button = [] {
        auto* b = new orn::button(QStringLiteral("Plain"));
        b->setMinimumSize(90, 30);
        return b;
    };
    const auto make_framed = [] {
        auto* b = new orn::button(nullptr, QRect(0, 0, 80, 24));
        b->setText(QStringLiteral("Framed"));
        b->setFixedSize(90, 32);
        return b;
    };
    const auto make_html = [] {
        return new orn::button_html(
            QStringLiteral("<span style='color:#c6d5d2'>Rich <b>text</b> <i>face</i></span>"),
            nullptr, QRect(0, 0, 120, 24));
    };
    const std::vector<std::pair<QString, std::function<orn::button*()>>> rows = {
        {QStringLiteral("button"), make_button},
        {QStringLiteral("button, rectangle"), make_framed},
        {QStringLiteral("button_html"), make_html},
    };
    int row = 1;
    for (const auto& [title, make] : rows) {
        grid->addWidget(new QLabel(title), row, 0);
        grid->addWidget(make(), row, 1, Qt::AlignCenter);
        orn::button* flashed = make();
        grid->addWidget(flashed, row, 2, Qt::AlignCenter);
        flash(flashed);
        ++row;
    }
    grid->addWidget(new QLabel(QStringLiteral("button_custom")), row, 0);
    // A custom button has no look of its own; the owner gives it one.
    auto* custom = new orn::button_custom(QStringLiteral("Drop here"));
    custom->setStyleSheet(QStringLiteral("QPushButton{border:1px dashed rgb(99,99,99);"
                                         "padding:4px 12px;background:transparent;}"));
    grid->addWidget(custom, row, 1, Qt::AlignCenter);
    grid->setRowStretch(row + 1, 1);
    return page;
}

QWidget* check_screen()
{
    QGridLayout* grid = nullptr;
    QWidget* page = make_page(grid);
    const QStringList columns = {QStringLiteral("unchecked"), QStringLiteral("checked"),
                                 QStringLiteral("disabled"), QStringLiteral("disabled, checked")};
    for (int column = 0; column < columns.size(); ++column) {
        grid->addWidget(new QLabel(columns[column]), 0, column + 1, Qt::AlignCenter);
    }

    const orn::pixel_argb transparent(0, 0, 0, 0);
    const QString checked_image = QStringLiteral(":/gui/checkbox/checked.png");
    const QString unchecked_image = QStringLiteral(":/gui/checkbox/unchecked.png");
    const std::vector<std::pair<QString, std::function<QAbstractButton*()>>> rows = {
        {QStringLiteral("checkbox"), [] { return new orn::checkbox(QStringLiteral("Option")); }},
        {QStringLiteral("both images"),
         [=] {
             auto* c = new orn::checkbox(QStringLiteral("Option"));
             c->set_look(6, transparent, checked_image, unchecked_image, orn::palette::text);
             return c;
         }},
        {QStringLiteral("checked image"),
         [=] {
             auto* c = new orn::checkbox(QStringLiteral("Option"));
             c->set_look(6, transparent, checked_image, QString(), orn::palette::text);
             return c;
         }},
        {QStringLiteral("colour"),
         [=] {
             auto* c = new orn::checkbox(QStringLiteral("Option"));
             c->set_look(6, orn::pixel_argb(90, 140, 200), QString(), QString(),
                         orn::pixel_argb(230, 230, 230));
             return c;
         }},
        {QStringLiteral("checkbox_flat"),
         [] { return new orn::checkbox_flat(QStringLiteral("Option")); }},
        {QStringLiteral("radio"), [] { return new orn::radio(QStringLiteral("Choice")); }},
    };
    int row = 1;
    for (const auto& [title, make] : rows) {
        grid->addWidget(new QLabel(title), row, 0);
        for (int column = 0; column < 4; ++column) {
            QAbstractButton* b = make();
            b->setChecked(column % 2 == 1);
            b->setEnabled(column < 2);
            grid->addWidget(b, row, column + 1);
        }
        ++row;
    }
    grid->setRowStretch(row, 1);
    return page;
}

QWidget* input_screen()
{
    QGridLayout* grid = nullptr;
    QWidget* page = make_page(grid);
    grid->addWidget(new QLabel(QStringLiteral("normal")), 0, 1, Qt::AlignCenter);
    grid->addWidget(new QLabel(QStringLiteral("disabled")), 0, 2, Qt::AlignCenter);
    const QStringList items = {QStringLiteral("Separate Styles"), QStringLiteral("Stylepack"),
                               QStringLiteral("Stylepack with Category")};

    int row = 1;
    grid->addWidget(new QLabel(QStringLiteral("combobox")), row, 0);
    for (int column = 1; column <= 2; ++column) {
        auto* box = new orn::combobox;
        box->addItems(items);
        box->setEnabled(column == 1);
        grid->addWidget(box, row, column);
    }
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("editable combobox")), row, 0);
    {
        auto* box = new orn::combobox;
        box->setEditable(true);
        box->setLineEdit(new orn::combobox_lineedit);
        box->addItems(items);
        grid->addWidget(box, row, 1);
    }
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("lineedit")), row, 0);
    for (int column = 1; column <= 2; ++column) {
        auto* edit = new orn::lineedit;
        edit->setText(QStringLiteral("/home/user/Pictures"));
        edit->setEnabled(column == 1);
        grid->addWidget(edit, row, column);
    }
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("lineedit, border")), row, 0);
    {
        auto* edit = new orn::lineedit;
        edit->set_border_color(orn::pixel_argb(200, 80, 60));
        edit->setText(QStringLiteral("not a folder"));
        grid->addWidget(edit, row, 1);
    }
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("textedit")), row, 0);
    for (int column = 1; column <= 2; ++column) {
        auto* text = new orn::textedit;
        text->setLineWrapMode(QTextEdit::NoWrap);
        QString lines;
        for (int line = 1; line <= 12; ++line) {
            lines += QStringLiteral("Line %1 of a text long enough to need both scroll bars\n")
                         .arg(line);
        }
        text->setPlainText(lines);
        text->setFixedHeight(110);
        text->setEnabled(column == 1);
        grid->addWidget(text, row, column);
    }
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("style_scrollbars")), row, 0);
    {
        auto* list = new QListWidget;
        list->setStyleSheet(QStringLiteral("QListWidget{background:rgb(36,36,36);"
                                           "border:1px solid rgb(99,99,99);}"));
        for (int item = 1; item <= 20; ++item) {
            list->addItem(QStringLiteral("Item %1").arg(item));
        }
        list->setFixedHeight(90);
        orn::style_scrollbars(list);
        grid->addWidget(list, row, 1);
    }
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("button_combobox")), row, 0);
    {
        auto* box = new orn::button_combobox;
        box->setFixedSize(120, 26);
        box->set_paint_callback([box](QPainter& painter) {
            painter.setPen(to_color(orn::palette::border));
            painter.setBrush(to_color(orn::palette::input_ground));
            painter.drawRoundedRect(QRectF(box->rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
            painter.setPen(to_color(orn::palette::text));
            painter.drawText(box->rect(), Qt::AlignCenter, QStringLiteral("Pick a colour"));
        });
        auto* popup = new orn::button_combobox::combo_box_widget(page);
        popup->setFixedSize(160, 40);
        popup->setObjectName(QStringLiteral("popup"));
        popup->setAttribute(Qt::WA_StyledBackground);
        popup->setStyleSheet(
            QStringLiteral("#popup{background:rgb(36,36,36);border:1px solid rgb(99,99,99);}"));
        auto* popup_layout = new QVBoxLayout(popup);
        popup_layout->addWidget(new QLabel(QStringLiteral("The popup widget")));
        grid->addWidget(box, row, 1);
        box->set_popup_widget(popup);
    }
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("slider (proxy_style)")), row, 0);
    grid->addWidget(new QSlider(Qt::Horizontal), row, 1);
    grid->setRowStretch(row + 1, 1);
    return page;
}

// Dialogs run modally, so a screen can't hold one. Their screens show a picture
// of the real dialog, taken as it opened, and a button that opens it for real.
//
// Runs `open`; each modal dialog that appears meanwhile is pictured, then handed
// to the next of `answers` (which must make it go away, or open another one).
std::vector<QPixmap> pictures_of_dialogs(const std::function<void()>& open,
                                         std::deque<std::function<void(QWidget*)>> answers)
{
    std::vector<QPixmap> pictures;
    QWidget* last = nullptr;
    std::list<QTimer> answer_timers;
    QTimer poll;
    poll.setInterval(10);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog == last || !dialog->isVisible() || answers.empty()) {
            return;
        }
        last = dialog;
        pictures.push_back(dialog->grab());
        // Each answer comes from a timer of its own: an answer may open the next
        // dialog, and a timer doesn't fire again inside its own slot.
        QTimer& later = answer_timers.emplace_back();
        later.setSingleShot(true);
        QObject::connect(&later, &QTimer::timeout,
                         [answer = answers.front(), dialog] { answer(dialog); });
        later.start(0);
        answers.pop_front();
    });
    poll.start();
    open();
    return pictures;
}

void reject_dialog(QWidget* dialog)
{
    if (auto* modal = qobject_cast<QDialog*>(dialog)) {
        modal->reject();
    }
}

QWidget* dialog_screen(const std::function<void()>& open,
                       std::deque<std::function<void(QWidget*)>> answers)
{
    QGridLayout* grid = nullptr;
    QWidget* page = make_page(grid);
    int row = 0;
    for (const QPixmap& picture : pictures_of_dialogs(open, std::move(answers))) {
        auto* shown = new QLabel;
        shown->setPixmap(picture);
        // The dialogs share the page's ground: a line shows where each one ends.
        shown->setStyleSheet(QStringLiteral("QLabel{border:1px solid rgb(99,99,99);}"));
        grid->addWidget(shown, row++, 0, Qt::AlignLeft | Qt::AlignTop);
    }
    auto* again = new orn::button_dark(QStringLiteral("Open"));
    again->setFixedSize(80, 26);
    grid->addWidget(again, row, 0, Qt::AlignLeft);
    grid->setRowStretch(row + 1, 1);
    QObject::connect(again, &QPushButton::clicked, page, open);
    return page;
}

QWidget* message_box_screen(const std::function<void()>& open)
{
    return dialog_screen(open, {reject_dialog});
}

const QString sample_name = QStringLiteral("<font color=\"white\"><b>Warm Evening</b></font>");

QWidget* information_screen()
{
    return message_box_screen([] {
        orn::message_box::information(
            nullptr, QStringLiteral("Stylepack written"),
            QStringLiteral("The stylepack was written to the output folder."));
    });
}

QWidget* question_screen()
{
    return message_box_screen([] {
        orn::message_box::question(nullptr, QStringLiteral("Restart now?"),
                                   QStringLiteral("The language changes after a restart.<br/>"
                                                  "Restart the program now?"));
    });
}

QWidget* warning_screen()
{
    return message_box_screen([] {
        orn::message_box::warning(nullptr, QStringLiteral("Output folder"),
                                  QStringLiteral("The output folder can't be written."),
                                  QMessageBox::Ok | QMessageBox::Cancel);
    });
}

QWidget* critical_screen()
{
    return message_box_screen([] {
        orn::message_box::critical(
            nullptr, QStringLiteral("Unsupported preset format"),
            QStringLiteral("Your preset %1 is in a format that can't be converted.")
                .arg(sample_name));
    });
}

QWidget* question_two_screen()
{
    return message_box_screen([] {
        orn::message_box::question(nullptr, QStringLiteral("Change language"),
                                   QStringLiteral("Restart now to change the language?"),
                                   QStringLiteral("Restart"), QStringLiteral("Later"),
                                   QMessageBox::Yes);
    });
}

QWidget* question_three_screen()
{
    return message_box_screen([] {
        orn::message_box::question(nullptr, QStringLiteral("Save log"),
                                   QStringLiteral("Save the log before clearing it?"),
                                   QStringLiteral("Save"), QStringLiteral("Discard"),
                                   QStringLiteral("Keep"), QMessageBox::Yes);
    });
}

QWidget* question_four_screen()
{
    return message_box_screen([] {
        orn::message_box::question(
            nullptr, QStringLiteral("White balance modified by preset"),
            QStringLiteral("Your preset %1 contains values for the white balance.<br/><br/>"
                           "Equal white balance values can lead to different results.<br/>"
                           "They are translated instead of adapted visually.")
                .arg(sample_name),
            QStringLiteral("Convert"), QStringLiteral("Skip"), QStringLiteral("Convert All"),
            QStringLiteral("Skip All"), QMessageBox::Yes);
    });
}

QWidget* critical_two_screen()
{
    return message_box_screen([] {
        orn::message_box::critical(nullptr, QStringLiteral("Can't write stylepack"),
                                   QStringLiteral("The stylepack can't be written.<br/>"
                                                  "Try another folder?"),
                                   QStringLiteral("Try again"), QStringLiteral("Give up"),
                                   QMessageBox::Yes);
    });
}

// The About box as the program opens it, and the library list behind its link.
// Without the program's images the header stays empty.
QWidget* about_screen()
{
    const auto open = [] {
        orn::dialog_about about(
            nullptr, QStringLiteral("#logobg{ background-image:url(:/images/Head.png);}"), 97, 10);
        about.set_3rdparty_libs(orn::dialog_about::default_3rdparty_libs(false, false));
        about.exec();
    };
    const auto open_libraries = [](QWidget* about) {
        auto* link = about->findChild<orn::clickable_label*>();
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(2, 2), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(link, &press);
        // The library list has been answered by now; the About box goes too.
        reject_dialog(about);
    };
    return dialog_screen(open, {open_libraries, reject_dialog});
}

std::vector<screen> screens()
{
    return {
        {QStringLiteral("dark_buttons"), QStringLiteral("Dark buttons"), dark_buttons_screen},
        {QStringLiteral("flat_buttons"), QStringLiteral("Flat and round"), flat_buttons_screen},
        {QStringLiteral("plain_buttons"), QStringLiteral("Plain buttons"), plain_buttons_screen},
        {QStringLiteral("check_and_radio"), QStringLiteral("Check and radio"), check_screen},
        {QStringLiteral("inputs"), QStringLiteral("Inputs"), input_screen},
        {QStringLiteral("information"), QStringLiteral("Information"), information_screen},
        {QStringLiteral("question"), QStringLiteral("Question"), question_screen},
        {QStringLiteral("warning"), QStringLiteral("Warning"), warning_screen},
        {QStringLiteral("critical"), QStringLiteral("Critical"), critical_screen},
        {QStringLiteral("question_two"), QStringLiteral("Two texts"), question_two_screen},
        {QStringLiteral("question_three"), QStringLiteral("Three texts"), question_three_screen},
        {QStringLiteral("question_four"), QStringLiteral("Four texts"), question_four_screen},
        {QStringLiteral("critical_two"), QStringLiteral("Critical, two texts"),
         critical_two_screen},
        {QStringLiteral("about"), QStringLiteral("About"), about_screen},
    };
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("orn_gallery"));
    QApplication::setApplicationVersion(QStringLiteral(LOOKWRIGHT_VERSION));
    auto* style = new orn::proxy_style;
    style->set_tooltip_delay(2000);
    // The application takes the style and deletes it at the end; the analyzer
    // can't see that and reports a leak at the next statement.
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks)
    QApplication::setStyle(style);
    QCommandLineParser parser;
    // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
    parser.addHelpOption();
    const QCommandLineOption shots_option(QStringLiteral("shots"),
                                          QStringLiteral("Write a PNG of each screen to <dir>."),
                                          QStringLiteral("dir"));
    parser.addOption(shots_option);
    parser.process(app);

    QTabWidget window;
    window.setWindowTitle(QStringLiteral("orn gallery"));
    // The tabs only carry the gallery; they take the input ground so that the
    // light text of the window's sheet stays readable on them.
    window.setStyleSheet(QStringLiteral(
        "QWidget#page{background-color:rgb(47,47,47);} *{color:rgb(198,213,210);}"
        "QTabWidget::pane{border:none;}"
        "QTabBar::tab{background:rgb(36,36,36);border:1px solid rgb(99,99,99);padding:4px 12px;}"
        "QTabBar::tab:selected{background:rgb(47,47,47);border-bottom:none;}"));
    window.resize(900, 620);

    if (parser.isSet(shots_option)) {
        const QDir dir(parser.value(shots_option));
        if (!dir.mkpath(QStringLiteral("."))) {
            qCritical("Can't make '%s'", qUtf8Printable(dir.path()));
            return 1;
        }
        window.show();
        // Each screen is built just before its shot, so that a flash started while
        // building is still on.
        for (const screen& entry : screens()) {
            QWidget* page = entry.make();
            window.addTab(page, entry.title);
            window.setCurrentWidget(page);
            QApplication::processEvents();
            const QString file = dir.filePath(entry.name + QStringLiteral(".png"));
            if (!page->grab().save(file)) {
                qCritical("Can't write '%s'", qUtf8Printable(file));
                return 1;
            }
        }
        return 0;
    }

    for (const screen& entry : screens()) {
        window.addTab(entry.make(), entry.title);
    }
    window.show();
    return QApplication::exec();
}
