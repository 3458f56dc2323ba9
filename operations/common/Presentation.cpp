#include "operations/common/Presentation.h"

QString displayVariableName(const QString &name)
{
    const QLatin1Char mark('$');
    return name.isEmpty() || name.startsWith(mark) ? name : mark + name;
}
