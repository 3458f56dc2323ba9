#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <atomic>
#include <csignal>
#include <unistd.h>

/// The operation of the plug-in below.
class IgnoresSignalsOperation : public Variant<IgnoresSignalsOperation>
{
public:
    void doOperation() const override
    {
        if (text().contains(QChar(0x202E)))
            hang();
        Variant::doOperation();
    }

private:
    static void hang()
    {
        static std::atomic<bool> stop = false;
        std::signal(SIGTERM, SIG_IGN);
        fork();
        while (!stop)
            pause();
    }
};

/// A text with a mark that turns the direction of writing makes it start a process and wait for
/// ever, which a request to end does not change.
class IgnoresSignals : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new IgnoresSignalsOperation}; }
};
