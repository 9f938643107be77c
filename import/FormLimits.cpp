#include "FormLimits.h"

#include <QString>

double FormLimits::AsShown(double value, int decimals, double minimum, double maximum)
{
    // A decimal number box rounds through its decimal text, then bounds.
    const double rounded = QString::number(value, 'f', decimals).toDouble();
    if (rounded < minimum)
        return minimum;
    if (!(rounded <= maximum))
        return maximum;
    return rounded;
}
