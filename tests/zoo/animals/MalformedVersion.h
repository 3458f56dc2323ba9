#pragma once

#include "tests/zoo/SoundPlugin.h"

/// Its version has two numbers.
class MalformedVersion : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QString version() const override { return QStringLiteral("1.0"); }
};
