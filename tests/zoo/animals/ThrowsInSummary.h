#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <stdexcept>

/// The operation of the plug-in below.
class ThrowsInSummaryOperation : public Variant<ThrowsInSummaryOperation>
{
public:
    QString toString() const override
    {
        if (mode() == 99)
            throw std::out_of_range("mode 99");
        return Variant::toString();
    }
};

/// A mode out of range makes the summary throw.
class ThrowsInSummary : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ThrowsInSummaryOperation}; }
};
