#pragma once

#include "orn/main_window.h"

#include <QFont>
#include <QSettings>

class QGridLayout;

namespace orn {
class application_log;
class button_dark;
class lineedit;
} // namespace orn

// The program's one window: a header with the settings, About and help buttons
// and the logo, the output folder, and the convert button that runs a conversion.
// The height is fixed; only the width can be changed.
class MainWindow : public orn::main_window
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent);

    // The conversion run: asks for presets, converts them and writes the styles.
    Q_SLOT void on_button_convert_clicked();

private:
    void make_central_widget();
    void make_header(QGridLayout* outer);
    void choose_output_folder();
    void show_about();

    orn::application_log* log_window; // the process's log, not owned; null if none was made
    QFont normal_font;
    QFont bold_font;
    QSettings settings;

    orn::button_dark* settings_button = nullptr;
    orn::button_dark* about_button = nullptr;
    orn::button_dark* help_button = nullptr;
    orn::button_dark* folder_button = nullptr;
    orn::button_dark* convert_button = nullptr;
    orn::lineedit* output_line = nullptr;
};
