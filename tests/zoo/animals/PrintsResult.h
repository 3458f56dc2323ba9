#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <cstdio>

/// The operation of the plug-in below.
class PrintsResultOperation : public Variant<PrintsResultOperation>
{
public:
    void doOperation() const override
    {
        Variant::doOperation();
        std::printf("%s\n", text().toUtf8().constData());
    }
};

/// A run prints its text to standard output.
class PrintsResult : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new PrintsResultOperation}; }
};
