#pragma once

#include <QMainWindow>

namespace orn {

// The base of a program's main window. It adds nothing to QMainWindow yet; it is
// the one place where behaviour shared by the toolkit's main windows would go.
class main_window : public QMainWindow
{
public:
    using QMainWindow::QMainWindow;
};

} // namespace orn
