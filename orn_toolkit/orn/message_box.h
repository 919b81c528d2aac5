#pragma once

#include <QMessageBox>

namespace orn {

// The program's one dark message box. The static entry points build a box, add
// the buttons, run it and write the answer into the debug log, so that a log
// shows how the user answered every question.
class message_box : public QMessageBox
{
    Q_OBJECT

public:
    message_box(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
                QWidget* parent);

    static StandardButton information(QWidget* parent, const QString& title, const QString& text,
                                      StandardButtons buttons = Ok,
                                      StandardButton default_button = NoButton);
    static StandardButton question(QWidget* parent, const QString& title, const QString& text,
                                   StandardButtons buttons = StandardButtons(Yes | No),
                                   StandardButton default_button = NoButton);
    static StandardButton warning(QWidget* parent, const QString& title, const QString& text,
                                  StandardButtons buttons = Ok,
                                  StandardButton default_button = NoButton);
    static StandardButton critical(QWidget* parent, const QString& title, const QString& text,
                                   StandardButtons buttons = Ok,
                                   StandardButton default_button = NoButton);

    // Yes and No, labelled by the caller.
    static StandardButton question(QWidget* parent, const QString& title, const QString& text,
                                   const QString& yes_text, const QString& no_text,
                                   StandardButton default_button);
    // Yes, No and Cancel, labelled by the caller.
    static StandardButton question(QWidget* parent, const QString& title, const QString& text,
                                   const QString& yes_text, const QString& no_text,
                                   const QString& cancel_text, StandardButton default_button);
    // Yes, YesToAll, No and NoToAll; the labels come in the order Yes, No, YesToAll, NoToAll.
    static StandardButton question(QWidget* parent, const QString& title, const QString& text,
                                   const QString& yes_text, const QString& no_text,
                                   const QString& yes_to_all_text, const QString& no_to_all_text,
                                   StandardButton default_button);
    // Yes and No, labelled by the caller.
    static StandardButton critical(QWidget* parent, const QString& title, const QString& text,
                                   const QString& yes_text, const QString& no_text,
                                   StandardButton default_button);
};

} // namespace orn
