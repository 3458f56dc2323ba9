#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

#include <QThread>

#include <array>
#include <atomic>

/// The operation of the plug-in below.
class SharedBufferOperation : public Variant<SharedBufferOperation>
{
public:
    void doOperation() const override
    {
        static std::array<std::atomic<ushort>, 4> buffer;
        if (!scope || resultVar().isEmpty() || scope->typeOf(resultVar()) != VarType::String) {
            Variant::doOperation();
            return;
        }
        const QString text = result().left(static_cast<int>(buffer.size()));
        for (int i = 0; i < text.size(); ++i)
            buffer[static_cast<std::size_t>(i)] = text.at(i).unicode();
        QThread::yieldCurrentThread();
        QString stored;
        for (int i = 0; i < text.size(); ++i)
            stored.append(QChar(buffer[static_cast<std::size_t>(i)]));
        scope->set(resultVar(), stored);
    }
};

/// Its steps share a buffer, also on different threads.
class SharedBuffer : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new SharedBufferOperation}; }
};
