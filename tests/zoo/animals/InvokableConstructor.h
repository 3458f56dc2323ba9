#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class InvokableConstructorOperation : public Variant<InvokableConstructorOperation>
{
    Q_OBJECT

public:
    Q_INVOKABLE InvokableConstructorOperation() {}
};

/// Its operation can be made through its meta-object.
class InvokableConstructor : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new InvokableConstructorOperation}; }
};
