#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Nobody's concern but this library's.
Q_DECL_EXPORT int zooSecret()
{
    return 1;
}

/// Lets a function of its own out of the library.
class ExportedSymbol : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QString name() const override
    {
        return QString(QLatin1Char('Z')).repeated(zooSecret()) + QStringLiteral("oo");
    }
};
