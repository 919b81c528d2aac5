// Linked into every program that links the widget layer, as an object file of its
// own that the linker can't drop: so any such program shows a fatal message in a
// box and finds the toolkit's images, whether or not it calls install_widget_layer.
#include "orn/widget_layer.h"

#include <QCoreApplication>

static void install_widget_layer_at_start()
{
    orn::install_widget_layer();
}

Q_COREAPP_STARTUP_FUNCTION(install_widget_layer_at_start)
