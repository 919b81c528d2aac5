#include "orn/message_box.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLoggingCategory>
#include <QMap>
#include <QPushButton>

namespace orn {

namespace {

// The button images come from the toolkit's resources; the commented rule is an
// older flat look kept in the sheet as it was shipped.
const QString box_sheet = QStringLiteral(
    "* {background-color: rgb(47,47,47);color: rgb(198,213,210); }"
    "/*QAbstractButton { background-color: rgb(36,36,36);background-image: none;border-image: "
    "none; }*/"
    "QAbstractButton{padding-left:0.5em; padding-top: 0.5ex; padding-right: 0.5em; "
    "padding-bottom: 0.25ex; border-style:none;border-width:3px;"
    "border-image:url(:/gui/button/dark_normal.png) 3 stretch;}"
    "QAbstractButton::pressed{border-style:none;border-width:3px;"
    "border-image:url(:/gui/button/dark_pressed.png) 3 stretch;}"
    "QAbstractButton::hover{color:#f0f0f0;}"
    "QAbstractButton::disabled{color:rgba(129,136,133,50%);}");

const QString icon_label_sheet =
    QStringLiteral("background: none; background-color: rgb(47,47,47); color: rgb(184,196,191);");

// QMessageBox names its icon label so; a Qt without it simply leaves the icon unstyled.
const QString icon_label_name = QStringLiteral("qt_msgboxex_icon_label");

// The standard buttons are the 18 bits from Ok (0x400) up to RestoreDefaults.
constexpr unsigned first_button_bit = QMessageBox::FirstButton;
constexpr int button_bit_count = 18;

using button_labels = QMap<QMessageBox::StandardButton, QString>;

void add_buttons(QMessageBox& box, QMessageBox::StandardButtons buttons,
                 QMessageBox::StandardButton default_button)
{
    for (int i = 0; i < button_bit_count; ++i) {
        const auto which = QMessageBox::StandardButton(first_button_bit << i);
        if (!buttons.testFlag(which)) {
            continue;
        }
        QPushButton* button = box.addButton(which);
        if (box.defaultButton() != nullptr) {
            continue;
        }
        // A default outside the mask leaves the box without one; with no default
        // given, the first accepting button in bit order is it.
        const bool is_default = default_button == QMessageBox::NoButton
                                    ? box.buttonRole(button) == QMessageBox::AcceptRole
                                    : which == default_button;
        if (is_default) {
            box.setDefaultButton(button);
        }
    }
}

QMessageBox::StandardButton run(QMessageBox::Icon icon, QWidget* parent, const QString& title,
                                const QString& text, QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton default_button,
                                const button_labels& labels = {})
{
    message_box box(icon, title, text, QMessageBox::NoButton, parent);
    if (auto* icon_label = box.findChild<QLabel*>(icon_label_name)) {
        icon_label->setStyleSheet(icon_label_sheet);
    }
    add_buttons(box, buttons, default_button);
    for (auto it = labels.cbegin(); it != labels.cend(); ++it) {
        box.button(it.key())->setText(it.value());
    }

    const int result = box.exec();
    // -1 means no button: the box went away without a click. Qt's own boxes
    // answer Cancel then, and so do these.
    QAbstractButton* clicked = box.clickedButton();
    const bool cancelled = result == -1 || clicked == nullptr;
    if (QLoggingCategory::defaultCategory()->isDebugEnabled()) {
        const QString answer = cancelled ? QStringLiteral("Cancel") : clicked->text();
        qDebug("MessageBox \"%s\" \"%s\": %s", qUtf8Printable(title), qUtf8Printable(text),
               qUtf8Printable(answer));
    }
    return cancelled ? QMessageBox::Cancel : box.standardButton(clicked);
}

} // namespace

message_box::message_box(Icon icon, const QString& title, const QString& text,
                         StandardButtons buttons, QWidget* parent)
    : QMessageBox(icon, title, text, buttons, parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint)
{
    setStyleSheet(box_sheet);
}

QMessageBox::StandardButton message_box::information(QWidget* parent, const QString& title,
                                                     const QString& text, StandardButtons buttons,
                                                     StandardButton default_button)
{
    return run(Information, parent, title, text, buttons, default_button);
}

QMessageBox::StandardButton message_box::question(QWidget* parent, const QString& title,
                                                  const QString& text, StandardButtons buttons,
                                                  StandardButton default_button)
{
    return run(Question, parent, title, text, buttons, default_button);
}

QMessageBox::StandardButton message_box::warning(QWidget* parent, const QString& title,
                                                 const QString& text, StandardButtons buttons,
                                                 StandardButton default_button)
{
    return run(Warning, parent, title, text, buttons, default_button);
}

QMessageBox::StandardButton message_box::critical(QWidget* parent, const QString& title,
                                                  const QString& text, StandardButtons buttons,
                                                  StandardButton default_button)
{
    return run(Critical, parent, title, text, buttons, default_button);
}

QMessageBox::StandardButton message_box::question(QWidget* parent, const QString& title,
                                                  const QString& text, const QString& yes_text,
                                                  const QString& no_text,
                                                  StandardButton default_button)
{
    return run(Question, parent, title, text, Yes | No, default_button,
               {{Yes, yes_text}, {No, no_text}});
}

QMessageBox::StandardButton message_box::question(QWidget* parent, const QString& title,
                                                  const QString& text, const QString& yes_text,
                                                  const QString& no_text,
                                                  const QString& cancel_text,
                                                  StandardButton default_button)
{
    return run(Question, parent, title, text, Yes | No | Cancel, default_button,
               {{Yes, yes_text}, {No, no_text}, {Cancel, cancel_text}});
}

QMessageBox::StandardButton message_box::question(QWidget* parent, const QString& title,
                                                  const QString& text, const QString& yes_text,
                                                  const QString& no_text,
                                                  const QString& yes_to_all_text,
                                                  const QString& no_to_all_text,
                                                  StandardButton default_button)
{
    return run(
        Question, parent, title, text, Yes | YesToAll | No | NoToAll, default_button,
        {{Yes, yes_text}, {No, no_text}, {YesToAll, yes_to_all_text}, {NoToAll, no_to_all_text}});
}

QMessageBox::StandardButton message_box::critical(QWidget* parent, const QString& title,
                                                  const QString& text, const QString& yes_text,
                                                  const QString& no_text,
                                                  StandardButton default_button)
{
    return run(Critical, parent, title, text, Yes | No, default_button,
               {{Yes, yes_text}, {No, no_text}});
}

} // namespace orn
