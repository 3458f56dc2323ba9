#include "operations/common/Warning.h"

#include <QMessageLogger>
#include <QMetaObject>

void logWarning(const QString &line)
{
    // No file, line or function, whatever the build type; but a category, since handlers that print
    // it do not expect a null one.
    QMessageLogger(nullptr, 0, nullptr, "default").warning("%s", line.toUtf8().constData());
}

QByteArray warningTag(const QMetaObject &operationClass)
{
    QByteArray name(operationClass.className());
    name.chop(static_cast<int>(qstrlen("Operation")));
    return '[' + name + ']';
}

void warnUnknownMode(const QMetaObject &operationClass, const char *what, int mode)
{
    const QByteArray line = warningTag(operationClass) + ' ' + what;
    warn(line.constData(), mode, "，已跳过");
}
