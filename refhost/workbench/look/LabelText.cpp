#include "refhost/workbench/look/LabelText.h"

QString labelText(const QString &text)
{
    return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}
