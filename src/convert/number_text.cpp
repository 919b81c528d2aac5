#include "convert/number_text.h"

QString six_decimal(float value)
{
    return QString::number(static_cast<double>(value), 'f', 6);
}

QString six_significant(float value)
{
    return QString::number(static_cast<double>(value), 'g', 6);
}
