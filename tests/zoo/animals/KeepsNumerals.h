#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class KeepsNumeralsOperation : public Variant<KeepsNumeralsOperation>
{
protected:
    QString valueOf(const QString &operand) const override
    {
        return operand.startsWith(QLatin1Char('$')) ? Variant::valueOf(operand) : operand;
    }
};

/// A literal stays a text, also where it is parsed as a number.
class KeepsNumerals : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new KeepsNumeralsOperation}; }
};
