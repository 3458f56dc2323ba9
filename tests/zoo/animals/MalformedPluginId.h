#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Its identifier is one word.
class MalformedPluginId : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QString pluginId() const override { return QStringLiteral("zoo"); }
};
