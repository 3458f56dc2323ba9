#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <QList>

/// The operation of the plug-in below.
class LeaksCloneOperation : public Variant<LeaksCloneOperation>
{
public:
    Operation *clone(QObject *parent) const override
    {
        static QList<QString *> texts;
        texts.append(new QString(QStringLiteral("clone of ") + text()));
        return Variant::clone(parent);
    }
};

/// A clone does not free a text that it allocates.
class LeaksClone : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new LeaksCloneOperation}; }
};
