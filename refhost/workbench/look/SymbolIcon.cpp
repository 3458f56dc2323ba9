#include "refhost/workbench/look/SymbolIcon.h"

#include "refhost/workbench/look/SymbolIconEngine.h"

QIcon symbolIcon(const QString &name)
{
    return QIcon(new SymbolIconEngine(QStringLiteral(":/symbols/%1.svg").arg(name)));
}
