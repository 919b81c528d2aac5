#include "app/main_window.h"

void MainWindow::on_button_convert_clicked()
{
}
