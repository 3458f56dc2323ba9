#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <atomic>

/// The operation of the plug-in below.
class LoopOnMarkOperation : public Variant<LoopOnMarkOperation>
{
public:
    void doOperation() const override
    {
        static std::atomic<bool> stop = false;
        while (text().contains(QChar(0x202E)) && !stop) {
        }
        Variant::doOperation();
    }
};

/// A text with a mark that turns the direction of writing never comes to its end.
class LoopOnMark : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new LoopOnMarkOperation}; }
};
