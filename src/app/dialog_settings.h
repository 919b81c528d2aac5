#pragma once

#include <QDialog>

class QSettings;
class QString;

namespace orn {
class combobox;
}

// The program's three choices: what a run writes, the colour space the styles are
// meant for, and the language. It has no OK or Cancel button: every change is
// stored at once, and the title bar's close button ends it.
class dialog_settings : public QDialog
{
    Q_OBJECT

public:
    dialog_settings(QSettings* settings, QWidget* parent);

public slots:
    // Writes "format", "colorspace" and "lang", whichever row changed.
    void save_settings();

private:
    QSettings* settings; // the main window's, not owned
    orn::combobox* format_combo;
    orn::combobox* colorspace_combo;
    orn::combobox* language_combo;
};

// Asks for a restart when the language differs from `previous`, the one in use
// before the settings dialog opened: the catalogues are loaded once, at start.
// Quits the application on "Quit now" and returns true then; false otherwise.
bool confirm_language_change(QWidget* parent, const QString& previous);
