#pragma once

#include "tests/zoo/SoundPlugin.h"

#include <QtGlobal>

/// Is of another version each time it is loaded.
class ChangingIdentity : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    ChangingIdentity()
    {
        m_patch = qEnvironmentVariableIntValue("ZOO_LOADED");
        qputenv("ZOO_LOADED", QByteArray::number(m_patch + 1));
    }

    QString version() const override { return QStringLiteral("1.0.%1").arg(m_patch); }

private:
    int m_patch = 0;
};
