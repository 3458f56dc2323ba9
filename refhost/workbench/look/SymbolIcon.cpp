#include "refhost/workbench/look/SymbolIcon.h"

#include "refhost/workbench/look/SymbolIconEngine.h"

QIcon symbolIcon(const QString &name, const QColor &color)
{
    Q_INIT_RESOURCE(symbols); // a static library does not do it by itself
    return QIcon(new SymbolIconEngine(QStringLiteral(":/symbols/%1.svg").arg(name), color));
}
