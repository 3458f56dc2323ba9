#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class TrimsNamesOperation : public Variant<TrimsNamesOperation>
{
protected:
    QString valueOf(const QString &operand) const override
    {
        const bool isName = operand.startsWith(QLatin1Char('$'));
        return Variant::valueOf(isName ? operand.trimmed() : operand);
    }
};

/// The name of a variable is trimmed.
class TrimsNames : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new TrimsNamesOperation}; }
};
