#include "refhost/workbench/settings/Settings.h"

#include <QStandardPaths>

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/opworkbench.ini");
}
