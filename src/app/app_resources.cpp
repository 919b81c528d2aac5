#include "app/app_resources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE declares the generated function itself, so it must stand outside
// any namespace.
void init_lookwright_resources()
{
    Q_INIT_RESOURCE(lookwright);
}
