#include "refhost/workbench/values/TextBeginning.h"

bool isPairAt(QStringView text, int index)
{
    return text.at(index).isHighSurrogate() && index + 1 < text.size() &&
           text.at(index + 1).isLowSurrogate();
}

QString textBeginning(const QString &text, int units)
{
    if (text.size() <= units)
        return text;
    return text.left(units > 0 && isPairAt(text, units - 1) ? units - 1 : units);
}
