#pragma once

#include "tests/zoo/SoundOperation.h"
#include "tests/zoo/SoundPlugin.h"

/// Hands out the same objects again and again.
class SameObjects : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override
    {
        if (m_prototypes.isEmpty())
            m_prototypes.append(new SoundOperation);
        return m_prototypes;
    }

private:
    QList<Operation *> m_prototypes;
};
