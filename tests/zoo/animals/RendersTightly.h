#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class RendersTightlyOperation : public Variant<RendersTightlyOperation>
{
protected:
    QString valueOf(const QString &operand) const override
    {
        const QString name = operand.mid(1).section(QLatin1Char('.'), 0, 0);
        const bool isList = scope->get(name).type() == QVariant::List;
        const QString text = Variant::valueOf(operand);
        return isList ? QString(text).replace(QLatin1String(", "), QLatin1String(",")) : text;
    }
};

/// The text of a list has no spaces between its elements.
class RendersTightly : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new RendersTightlyOperation}; }
};
