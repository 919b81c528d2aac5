#include "orn/widget_layer.h"

#include "orn/message_handler.h"

#include <QApplication>
#include <QMessageBox>
#include <QString>

// Q_INIT_RESOURCE must be called from outside any namespace, and the resources of a
// static library are dropped by the linker unless something calls it.
static void init_widget_resources()
{
    Q_INIT_RESOURCE(orn_widgets);
}

namespace orn {

void show_fatal_message(const QString& text, const QString& title)
{
    // A box needs a widget application; a headless program that links the layer
    // keeps its console line alone.
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        QMessageBox::critical(nullptr, title, text, QMessageBox::Ok);
    }
}

void install_widget_layer()
{
    static const bool installed = [] {
        init_widget_resources();
        fatal_message_hook = show_fatal_message;
        return true;
    }();
    Q_UNUSED(installed)
}

} // namespace orn
