#include "refhost/workbench/values/NumberText.h"

#include <QLocale>

#include <cmath>

QString numberText(double number)
{
    // Qt writes both zeros alike.
    if (number == 0 && std::signbit(number))
        return QStringLiteral("-0");
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QString groupedNumber(qint64 number)
{
    return QLocale(QLocale::Chinese, QLocale::China).toString(number);
}
