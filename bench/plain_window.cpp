// The yardstick for the start-up figure: a bare Qt window of the main window's
// size and title, with no fonts, resources, translators or style of our own. What
// the program takes beyond this is what it adds itself.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Lookwright"));
    window.resize(480, 136);
    window.show();
    return QApplication::exec();
}
